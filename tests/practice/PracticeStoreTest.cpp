// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/PracticeStore.h"

#include "PracticeKillSupport.h"
#include "support/TestSupport.h"
#include "transcript/ChildProcess.h"
#include "transcript/DocumentManager.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <cmath>
#include <csignal>
#include <gtest/gtest.h>

namespace {

PracticeRecord sampleRecord()
{
    PracticeRecord record;
    record.recordCheck(0, 0.5, QDate(2025, 12, 31));
    record.recordCheck(0, 0.9, QDate(2025, 12, 31)); // the same day is kept once
    record.recordCheck(0, 0.1 + 0.2, QDate(2026, 1, 3));
    record.recordHint(0);
    record.addTime(0, 12.25);
    record.recordHint(3); // segments 1 and 2 untouched
    record.addTime(3, 1.0 / 3.0);
    return record;
}

QStringList entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

TEST(PracticeRecord, KeepsChecksHintsScoresTimeAndDaysThroughJson)
{
    const PracticeRecord record = sampleRecord();
    const SegmentPractice first = record.segment(0);
    EXPECT_EQ(first.checks, 3);
    EXPECT_EQ(first.hints, 1);
    EXPECT_EQ(first.best, 0.9);
    EXPECT_EQ(first.last, 0.1 + 0.2);
    EXPECT_EQ(first.checkDates, (QList<QDate>{QDate(2025, 12, 31), QDate(2026, 1, 3)}));
    EXPECT_EQ(record.segment(1), SegmentPractice());
    EXPECT_EQ(record.segment(99), SegmentPractice());

    // What cannot be a check changes nothing.
    PracticeRecord same = record;
    EXPECT_FALSE(same.recordCheck(-1, 0.5, QDate(2026, 1, 4)));
    EXPECT_FALSE(same.recordCheck(0, std::nan(""), QDate(2026, 1, 4)));
    EXPECT_FALSE(same.recordCheck(0, 0.5, QDate()));
    EXPECT_FALSE(same.recordHint(PracticeRecord::MaxSegments));
    EXPECT_FALSE(same.addTime(0, INFINITY));
    EXPECT_EQ(same, record);

    for (const PracticeRecord& r : {record, PracticeRecord()}) {
        QString error;
        const std::optional<PracticeRecord> back = PracticeRecord::fromJson(r.toJson(), &error);
        ASSERT_TRUE(back) << error.toStdString();
        EXPECT_EQ(*back, r);
    }
    EXPECT_TRUE(record.toJson().contains("\"checkDates\":[\"2025-12-31\",\"2026-01-03\"]"));

    // A new cutting: each segment's practice goes where the segment went, and
    // two that went to the same place are added up.
    PracticeRecord two = record;
    two.recordCheck(1, 0.95, QDate(2026, 1, 3));
    two.addTime(1, 2.0);
    const PracticeRecord merged = two.remapped({0, 0, -1, 1});
    const SegmentPractice both = merged.segment(0);
    EXPECT_EQ(both.checks, 4);
    EXPECT_EQ(both.hints, 1);
    EXPECT_EQ(both.best, 0.95);
    EXPECT_EQ(both.last, 0.95);
    EXPECT_DOUBLE_EQ(both.secondsSpent, 14.25);
    EXPECT_EQ(both.checkDates, first.checkDates);
    EXPECT_EQ(merged.segment(1), record.segment(3));
    EXPECT_EQ(record.remapped({2}).segment(2), first);
}

TEST(PracticeStore, KeepsTheRecordBesideTheTranscriptAndNeverReplacesOneItCannotRead)
{
    QTemporaryDir home;
    const DocumentManager documents(home.filePath("Documents"));
    const PracticeStore store(documents);
    const QString identity(64, u'a');
    const QString folder = home.filePath("Documents/Transcriptions");
    const QString path = folder + "/" + identity + ".practice";
    EXPECT_EQ(store.pathForIdentity(identity), path);

    QString error = "stale";
    EXPECT_FALSE(store.load(identity, &error));
    EXPECT_TRUE(error.isEmpty()); // none stored is no error
    ASSERT_TRUE(store.save(identity, PracticeRecord(), &error)) << error.toStdString();
    ASSERT_TRUE(store.save(identity, sampleRecord(), &error)) << error.toStdString();
    EXPECT_EQ(store.load(identity), sampleRecord());
    EXPECT_EQ(entries(folder), QStringList{identity + ".practice"});

    const struct
    {
        QByteArray content;
        QString says;
    } bad[] = {
        {"{\"version\": 1, \"segments\": [{\"checks\": ", "not JSON"},
        {"{\"version\": 1, \"source\": \"a.srt\", \"units\": []}", "no list of segments"},
        {"[\"version\", 1]", "not a practice record"},
        {"{\"version\": 2, \"segments\": []}", "format version 2"},
        {"{\"version\": 1, \"segments\": [{\"checks\": -1}]}", "segment 1: a count"},
        {"{\"version\": 1, \"segments\": [{}, {\"checks\": 1, \"best\": 0.5, \"last\": 1.5}]}",
         "segment 2: a score outside"},
        {"{\"version\": 1, \"segments\": [{\"checks\": 1, \"best\": 0.5}]}",
         "scores that do not match"},
        {"{\"version\": 1, \"segments\": [{\"checks\": 2, \"best\": 1, \"last\": 1, "
         "\"checkDates\": [\"2026-01-03\", \"2026-01-02\"]}]}",
         "not days in order"},
        {"{\"version\": 1, \"segments\": [{\"checkDates\": [\"2026-02-30\"]}]}",
         "not days in order"},
        {QByteArray(PracticeStore::MaxFileBytes + 1, ' '), "more than a record holds"},
    };
    for (const auto& c : bad) {
        SCOPED_TRACE(c.says.toStdString());
        TestSupport::writeFile(path, c.content);
        EXPECT_FALSE(store.load(identity, &error));
        EXPECT_TRUE(error.contains(path)) << error.toStdString();
        EXPECT_TRUE(error.contains(c.says)) << error.toStdString();
        // The learner's file stays as it is until they remove it.
        EXPECT_FALSE(store.save(identity, sampleRecord(), &error));
        EXPECT_TRUE(error.contains(c.says)) << error.toStdString();
        EXPECT_EQ(TestSupport::readFile(path), c.content);
        EXPECT_EQ(entries(folder), QStringList{identity + ".practice"});
    }
    EXPECT_TRUE(store.remove(identity, &error));
    EXPECT_TRUE(store.remove(identity, &error)); // already gone
    EXPECT_TRUE(store.save(identity, sampleRecord(), &error)) << error.toStdString();

    for (const QString& refused :
         {QString(), QString("../escape"), QString(".hidden"), QString("a\\b")}) {
        SCOPED_TRACE(refused.toStdString());
        EXPECT_TRUE(store.pathForIdentity(refused).isNull());
        EXPECT_FALSE(store.save(refused, sampleRecord(), &error));
        EXPECT_FALSE(store.load(refused, &error));
        EXPECT_FALSE(error.isEmpty());
        EXPECT_FALSE(store.remove(refused, &error));
    }

    // A folder it may not write to: an error, and the previous record whole.
    const QByteArray before = TestSupport::readFile(path);
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const int outcome = ChildProcess::run([&] {
        if (!ChildProcess::dropPermissionOverrides())
            return ChildProcess::Unsupported;
        QString reason;
        const bool saved = store.save(identity, PracticeRecord(), &reason);
        return !saved && reason.startsWith("Error writing the practice record: ") &&
                       reason.contains(folder)
                   ? 0
                   : 1;
    });
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (outcome == ChildProcess::Unsupported)
        GTEST_SKIP() << "cannot give up root's permission overrides here";
    EXPECT_EQ(outcome, 0);
    EXPECT_EQ(TestSupport::readFile(path), before);
    EXPECT_EQ(entries(folder), QStringList{identity + ".practice"});
}

TEST(PracticeStore, ARecordKilledMidWriteIsTheOldOrTheNewNeverHalf)
{
    QTemporaryDir home;
    const DocumentManager documents(home.filePath("Documents"));
    const PracticeStore store(documents);
    const PracticeRecord records[] = {killTestRecord(0), killTestRecord(1)};
    ASSERT_NE(records[0], records[1]);

    QRandomGenerator random(20260412); // fixed: a failure can be replayed
    for (int round = 0; round < 40; ++round) {
        QProcess helper;
        helper.start(QStringLiteral(KELMORA_PRACTICE_KILL_HELPER), {home.filePath("Documents")});
        ASSERT_TRUE(helper.waitForStarted());
        ASSERT_TRUE(helper.waitForReadyRead(10000)) << "the helper never saved";
        QThread::usleep(random.bounded(1, 40000));
        ::kill(static_cast<pid_t>(helper.processId()), SIGKILL);
        helper.waitForFinished();
        QString error;
        const std::optional<PracticeRecord> read = store.load(KillTestIdentity, &error);
        ASSERT_TRUE(read) << "round " << round << ": " << error.toStdString();
        ASSERT_TRUE(*read == records[0] || *read == records[1]) << "round " << round;
    }
}
