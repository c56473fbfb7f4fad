// SPDX-License-Identifier: GPL-3.0-or-later
// The typing journal in the real window offscreen: typing that never reached
// a save comes back when the lesson opens again, a save drops what it wrote,
// rows cleared stay cleared, and a journal that cannot be written costs a
// status-bar line, never the typing or the store.

#include "app/AutoSaveQueue.h"
#include "app/FileIdentity.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "support/TestSupport.h"
#include "transcript/TypingJournal.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using TestSupport::fixture;
using TestSupport::readFile;
using TestSupport::writeFile;

namespace {

void selectRow(TranscriptionTableView* table, int row)
{
    const QRect cell = table->visualRect(table->model()->index(row, 1));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == table->editorForRow(row); }));
}

class SessionJournal : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        ASSERT_TRUE(dataHome.isValid());
        lesson = folder.filePath("lesson.wav");
        ASSERT_TRUE(QFile::copy(fixture("speech.wav"), lesson));
        const std::optional<QString> identity = FileIdentity::uniqueIdentifierForFileAtPath(lesson);
        ASSERT_TRUE(identity);
        qputenv("XDG_DATA_HOME", dataHome.path().toLocal8Bit());
        journal = QDir(TypingJournal::folderPath()).filePath(TypingJournal::fileNameFor(*identity));
    }

    // Opens the lesson in a window of its own, as a new launch would.
    TranscriptionTableView* open(WindowHarness& h)
    {
        QApplication::setActiveWindow(&h.window());
        if (!h.open(lesson))
            return nullptr;
        return h.session().transcriptionTableView();
    }

    QTemporaryDir folder;
    QTemporaryDir dataHome; // kept across the windows of one test, as across launches
    QString lesson;
    QString journal;
};

} // namespace

TEST_F(SessionJournal, TypingNeverSavedComesBackAndASaveDropsIt)
{
    {
        WindowHarness h(QString(), dataHome.path());
        TranscriptionTableView* table = open(h);
        ASSERT_NE(table, nullptr);
        selectRow(table, 2);
        QTest::keyClicks(QApplication::focusWidget(), "typed, never saved");
        h.finishAutoSaves();
        // The window goes without a save, as in a crash.
        EXPECT_FALSE(readFile(h.storePath()).contains("typed, never saved"));
    }
    {
        WindowHarness h(QString(), dataHome.path());
        TranscriptionTableView* table = open(h);
        ASSERT_NE(table, nullptr);
        EXPECT_EQ(table->mutableTranscriptions().value(2), "typed, never saved");
        EXPECT_EQ(h.session().statusBar()->currentMessage(),
                  "Recovered typing from your last session");

        // A save writes the row; the journal keeps nothing it wrote.
        h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
        selectRow(table, 3);
        h.finishAutoSaves();
        EXPECT_TRUE(readFile(h.storePath()).contains("typed, never saved"));
        EXPECT_TRUE(TypingJournal::replay(journal).records.isEmpty());

        // Rows cleared are journaled cleared: nothing old comes back.
        selectRow(table, 1);
        QTest::keyClicks(QApplication::focusWidget(), "soon cleared");
        AlertAnswerer ok(QStringLiteral("OK"));
        h.session().clearTranscription();
        ASSERT_TRUE(ok.waitForAlerts(1));
        // The sheet's answer reaches the session through the event loop.
        EXPECT_TRUE(waitFor([&] { return table->mutableTranscriptions().join(QString()).isEmpty(); }));
    }
    WindowHarness h(QString(), dataHome.path());
    TranscriptionTableView* table = open(h);
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->mutableTranscriptions().join(QString()).isEmpty())
        << table->mutableTranscriptions().join(u'|').toStdString();
}

TEST_F(SessionJournal, AJournalThatCannotBeWrittenCostsALineNotTheTyping)
{
    // Something that is not a journal where the lesson's journal would be.
    QDir().mkpath(QFileInfo(journal).path());
    writeFile(journal, "not a journal at all");
    WindowHarness h(QString(), dataHome.path());
    TranscriptionTableView* table = open(h);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(h.session().statusBar()->currentMessage(),
              "Typing since the last save is not protected: the journal cannot be written");
    selectRow(table, 1);
    QTest::keyClicks(QApplication::focusWidget(), "still typed");
    EXPECT_EQ(table->mutableTranscriptions().value(1), "still typed");
    h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
    selectRow(table, 2);
    h.finishAutoSaves();
    EXPECT_TRUE(readFile(h.storePath()).contains("still typed"));
    EXPECT_EQ(readFile(journal), "not a journal at all");
}
