// SPDX-License-Identifier: GPL-3.0-or-later
// What the store survives: a folder that turns read-only or is deleted, a
// full disk, a store file that is not text, an import that is not a file.
// Each leaves the last good transcript as it was, byte for byte, says so
// until a save succeeds, and keeps the session running.
//
// The binary runs in a private mount namespace (see CMakeLists.txt), where it
// may mount small file systems over the store folder.

#include "app/AutoSaveQueue.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "support/TestSupport.h"
#include "transcript/DocumentManager.h"
#include "transcript/FingerprintIndex.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <utility>

using TestSupport::fixture;

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class SessionFaults : public ::testing::Test
{
protected:
    void SetUp() override
    {
        store = h.documentsPath() + "/" + DocumentManager::TranscriptionsFolder;
        // A small file system of its own over the store folder.
        if (::mount("kelmora-test", QFile::encodeName(store).constData(), "tmpfs", 0, "size=64k") !=
            0)
            GTEST_SKIP() << "no private mount namespace here: " << std::strerror(errno);
        mounted = true;
        QApplication::setActiveWindow(&h.window());
        ASSERT_TRUE(h.open(fixture("lesson_95s.wav")));
        table = h.session().transcriptionTableView();
        ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == table->editorForRow(0); }));
        QTest::keyClicks(QApplication::focusWidget(), "good text");
        saveBySelecting(1);
        saved = readAll(h.storePath());
        ASSERT_TRUE(saved.contains("good text"));
    }

    void TearDown() override
    {
        if (mounted)
            ::umount2(QFile::encodeName(store).constData(), MNT_DETACH);
    }

    // Selecting a row after the throttle has passed starts an auto-save.
    void saveBySelecting(int row)
    {
        h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
        table->setCurrentSegment(row);
        QApplication::processEvents();
        h.finishAutoSaves();
    }

    QString statusMessage() { return h.session().statusBar()->currentMessage(); }

    // Every file there but the fingerprint index the store keeps beside them.
    QStringList storeFolderEntries() const
    {
        QStringList entries =
            QDir(store).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
        entries.removeAll(FingerprintIndex::FileName);
        return entries;
    }

    WindowHarness h;
    QString store;
    bool mounted = false;
    TranscriptionTableView* table = nullptr;
    QByteArray saved;
};

} // namespace

TEST_F(SessionFaults, AStoreFolderThatTurnedReadOnlyKeepsTheLastTranscript)
{
    ASSERT_EQ(::mount(nullptr, QFile::encodeName(store).constData(), nullptr,
                      MS_REMOUNT | MS_RDONLY, nullptr),
              0)
        << std::strerror(errno);
    table->updateTranscription("lost for now", 1);
    saveBySelecting(2);
    EXPECT_EQ(readAll(h.storePath()), saved);
    EXPECT_EQ(storeFolderEntries().size(), 1);
    EXPECT_EQ(statusMessage(), LocalizedString(Texts::SaveFailedNotice));
    // The learner carries on.
    EXPECT_EQ(h.session().currentSegmentIndex(), 2);
    EXPECT_TRUE(h.engine().isPlaying());
    EXPECT_EQ(table->mutableTranscriptions().value(1), "lost for now");
}

TEST_F(SessionFaults, AFullDiskKeepsTheLastTranscriptAndLeavesNoPartFile)
{
    // More than the 64 KiB the store's file system holds.
    table->updateTranscription(QString(100 * 1024, u'x'), 1);
    saveBySelecting(2);
    EXPECT_EQ(readAll(h.storePath()), saved);
    EXPECT_EQ(storeFolderEntries(), QStringList{QFileInfo(h.storePath()).fileName()});
    EXPECT_EQ(h.session().currentSegmentIndex(), 2);
    // The failure is said, and stays said while the learner goes on.
    EXPECT_EQ(statusMessage(), LocalizedString(Texts::SaveFailedNotice));
    QTest::qWait(50);
    EXPECT_EQ(statusMessage(), LocalizedString(Texts::SaveFailedNotice));
    {
        AlertAnswerer answer(LocalizedString(Texts::Cancel));
        h.window().close();
        ASSERT_TRUE(answer.waitForAlerts(1));
        EXPECT_TRUE(
            answer.seen()[0].informativeText.contains(LocalizedString(Texts::LastSaveFailed)));
    }

    // Room again: the next save goes through and takes the notice away.
    table->updateTranscription("short again", 1);
    saveBySelecting(3);
    EXPECT_TRUE(readAll(h.storePath()).contains("short again"));
    EXPECT_TRUE(statusMessage().isEmpty());
    EXPECT_FALSE(h.session().lastSaveFailed());
}

TEST_F(SessionFaults, ADeletedStoreFolderIsMadeAgainByTheNextSave)
{
    ::umount2(QFile::encodeName(store).constData(), MNT_DETACH);
    mounted = false;
    ASSERT_TRUE(QDir(store).removeRecursively());
    table->updateTranscription("after the folder went", 1);
    saveBySelecting(2);
    EXPECT_TRUE(readAll(h.storePath()).contains("after the folder went"));
    EXPECT_TRUE(statusMessage().isEmpty());
}

TEST_F(SessionFaults, ImportRefusesFifosDevicesAndHugeFilesWithAMessage)
{
    QTemporaryDir dir;
    const QString fifo = dir.filePath("fifo.lrc");
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString big = dir.filePath("big.lrc");
    {
        QFile file(big);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(50 * 1024 * 1024));
    }
    const std::pair<QString, const char*> refused[] = {{fifo, Texts::TranscriptNotAFile},
                                                       {"/dev/zero", Texts::TranscriptNotAFile},
                                                       {big, Texts::TranscriptTooLarge}};
    for (const auto& [path, message] : refused) {
        SCOPED_TRACE(path.toStdString());
        AlertAnswerer answer(LocalizedString(Texts::OK));
        h.session().importTranscriptionFrom(path);
        ASSERT_TRUE(answer.waitForAlerts(1));
        EXPECT_EQ(answer.seen()[0].informativeText, LocalizedString(message));
        EXPECT_EQ(table->mutableTranscriptions().value(0), "good text");
    }
}

TEST_F(SessionFaults, AStoreFileThatIsNotTextOrIsOneHugeLineOpensWithoutAFreeze)
{
    const QByteArray huge = QByteArray(10 * 1024 * 1024, 'a');
    for (const QByteArray& content :
         {QByteArray("[00:00.000]caf\xe9 \xff\xfe not UTF-8\n[00:01.000]x"),
          QByteArray("[00:00.000]") + huge}) {
        ::umount2(QFile::encodeName(store).constData(), MNT_DETACH);
        mounted = false;
        {
            QFile file(h.storePath());
            ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(content);
        }
        ASSERT_TRUE(h.open(fixture("lesson_95s.wav")));
        EXPECT_EQ(table->model()->rowCount(), h.engine().numberOfSegments());
        EXPECT_TRUE(h.engine().isPlaying());
        // Text that is not UTF-8 gives empty rows; one huge line is one row
        // over the whole recording, the cutting the file holds.
        if (content.size() < huge.size())
            EXPECT_TRUE(table->mutableTranscriptions().join(QString()).isEmpty());
        else
            EXPECT_EQ(table->mutableTranscriptions(), QStringList{QString::fromLatin1(huge)});
    }
}
