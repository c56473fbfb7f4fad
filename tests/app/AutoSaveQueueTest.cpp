// SPDX-License-Identifier: GPL-3.0-or-later
// The auto-save job on its own: the lines it writes, the throttle, and what a
// kill at any moment leaves behind.

#include "AutoSaveKillSupport.h"
#include "app/FileIdentity.h"
#include "support/TestSupport.h"
#include "transcript/LrcLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

QByteArray expectedBytes(const AutoSaveQueue::Snapshot& snapshot)
{
    return AutoSaveQueue::linesForSnapshot(snapshot).join(u'\n').toUtf8();
}

} // namespace

TEST(AutoSaveQueue, WritesOneLrcLinePerRowUnderTheAudioFilesIdentity)
{
    QTemporaryDir folder;
    AutoSaveQueue::Snapshot snapshot{fixture("speech.wav"), folder.path(),
                                     {"one", "", "three"}, {0.0, 1.001, 12.34}};
    QString identifier;
    ASSERT_TRUE(AutoSaveQueue::save(snapshot, &identifier));
    EXPECT_EQ(identifier, FileIdentity::uniqueIdentifierForFileAtPath(fixture("speech.wav")));
    EXPECT_EQ(TestSupport::readFile(folder.filePath(identifier)),
              "[00:00.000]one\n[00:01.001]\n[00:12.340]three");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{identifier});

    // A row past the last segment is stamped at 0, as the table stamps it.
    snapshot.starts = {0.0};
    EXPECT_EQ(AutoSaveQueue::linesForSnapshot(snapshot).value(2), "[00:00.000]three");

    // An audio file that cannot be examined names no store file.
    snapshot.audioPath = folder.filePath("missing.wav");
    EXPECT_FALSE(AutoSaveQueue::save(snapshot, &identifier));
    EXPECT_TRUE(identifier.isEmpty());
}

TEST(AutoSaveQueue, HoldsBackASaveWithinFiveSecondsOfTheLastStart)
{
    double now = 100.0;
    QTemporaryDir folder;
    AutoSaveQueue queue([&] { return now; });
    EXPECT_FALSE(queue.isThrottled()) << "the first save of a process is never held back";
    bool saved = false;
    queue.enqueue({fixture("speech.wav"), folder.path(), {"x"}, {0.0}},
                  [&](bool ok, const QString&) { saved = ok; });
    EXPECT_TRUE(queue.isThrottled());
    now += 4.999;
    EXPECT_TRUE(queue.isThrottled());
    now += 0.001;
    EXPECT_FALSE(queue.isThrottled());
    queue.waitForDone();
    QCoreApplication::processEvents();
    EXPECT_TRUE(saved);
}

TEST(AutoSaveQueue, AKillAtAnyMomentLeavesTheOldTranscriptOrTheNewOneWhole)
{
    QTemporaryDir folder;
    const QString audio = fixture("speech.wav");
    const QString store =
        folder.filePath(*FileIdentity::uniqueIdentifierForFileAtPath(audio));
    const QByteArray a = expectedBytes(killTestSnapshot(audio, folder.path(), 0));
    const QByteArray b = expectedBytes(killTestSnapshot(audio, folder.path(), 1));
    ASSERT_NE(a, b);

    QRandomGenerator random(20261123); // fixed: a failure can be replayed
    for (int round = 0; round < 60; ++round) {
        QProcess helper;
        helper.start(QStringLiteral(KELMORA_KILL_HELPER), {audio, folder.path()});
        ASSERT_TRUE(helper.waitForStarted());
        ASSERT_TRUE(helper.waitForReadyRead(10000)) << "the helper never saved";
        QThread::usleep(random.bounded(1, 40000));
        ::kill(static_cast<pid_t>(helper.processId()), SIGKILL);
        helper.waitForFinished();
        const QByteArray content = TestSupport::readFile(store);
        ASSERT_TRUE(content == a || content == b)
            << "round " << round << ": " << content.size() << " bytes";
    }
}
