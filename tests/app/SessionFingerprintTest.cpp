// SPDX-License-Identifier: GPL-3.0-or-later
// A dictation found again in the real window offscreen: typed for a lesson,
// then its audio file re-tagged, copied or moved; the file at the new path
// opens with the sheet offering the dictation, "Use It" brings the rows and
// the reference back, "Not Now" leaves the rows empty and the index as it was.

#include "app/AutoSaveQueue.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "support/TestSupport.h"
#include "transcript/FingerprintIndex.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using TestSupport::fixture;
using TestSupport::readFile;

namespace {

void selectRow(TranscriptionTableView* table, int row)
{
    table->scrollTo(table->model()->index(row, 1));
    const QRect cell = table->visualRect(table->model()->index(row, 1));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == table->editorForRow(row); }));
}

class SessionFingerprint : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        lesson = folder.filePath("lesson.mp3");
        ASSERT_TRUE(QFile::copy(fixture("speech.mp3"), lesson));
        QApplication::setActiveWindow(&h.window());
    }

    TranscriptionTableView* table() { return h.session().transcriptionTableView(); }

    // A save of the rows as they are now.
    void saveRows()
    {
        h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
        selectRow(table(), 3);
        h.finishAutoSaves();
    }

    // Opens the file, long enough after the last save for the opening's own
    // save to be due, and answers the sheet that comes up with the button.
    QString openAnswering(const QString& path, const QString& button)
    {
        h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
        AlertAnswerer answerer(button);
        if (!h.open(path) || !answerer.waitForAlerts(1)) {
            ADD_FAILURE() << "no sheet for " << path.toStdString();
            return {};
        }
        // Offscreen, nothing gives the window back its activation.
        waitFor([] { return QApplication::activeModalWidget() == nullptr; });
        QApplication::setActiveWindow(&h.window());
        h.finishAutoSaves();
        return answerer.seen().value(0).text;
    }

    QString indexedIdentity()
    {
        const FingerprintIndex index(h.documentsPath() + "/Transcriptions");
        const auto entry = index.lookup(h.session().contentFingerprint());
        return entry ? entry->identity : QString();
    }

    QTemporaryDir folder;
    QString lesson;
    WindowHarness h;
};

} // namespace

TEST_F(SessionFingerprint, TheDictationComesBackAtTheNewPathWhenTheLearnerWantsIt)
{
    ASSERT_TRUE(h.open(lesson));
    selectRow(table(), 1);
    QTest::keyClicks(QApplication::focusWidget(), "typed before the move");
    const QString reference = folder.filePath("lesson.txt");
    TestSupport::writeFile(reference, "Good morning, everyone. Today we will practise listening.");
    h.session().attachReferenceTextFrom(reference);
    ASSERT_TRUE(waitFor([&] { return h.session().hasReferenceText(); }));
    ASSERT_TRUE(dontAlign());
    saveRows();
    const QString lessonStore = h.storePath();
    ASSERT_TRUE(readFile(lessonStore).contains("typed before the move"));
    EXPECT_EQ(indexedIdentity(), QFileInfo(lessonStore).fileName());

    // Re-tagged (by the fixtures: a thread-sanitizer build cannot run ffmpeg
    // from a test), and the learner declines: empty rows, and the index
    // still leads to the dictation after the rows were saved.
    const QString retagged = folder.filePath("retagged.mp3");
    ASSERT_TRUE(QFile::copy(fixture("speech_retagged.mp3"), retagged));
    ASSERT_NE(readFile(retagged), readFile(lesson));
    EXPECT_TRUE(openAnswering(retagged, "Not Now")
                    .startsWith("Kelmora found a dictation typed for this recording at " + lesson +
                                " (last saved "));
    EXPECT_TRUE(table()->mutableTranscriptions().join(QString()).isEmpty());
    EXPECT_FALSE(h.session().hasReferenceText());
    saveRows();
    EXPECT_EQ(indexedIdentity(), QFileInfo(lessonStore).fileName());

    // Copied, and taken: rows and reference come back; the next save maps
    // the recording to the copy, and the lesson's own files stay.
    ASSERT_TRUE(QDir(folder.path()).mkdir("elsewhere"));
    const QString copied = folder.filePath("elsewhere/copy.mp3");
    ASSERT_TRUE(QFile::copy(lesson, copied));
    openAnswering(copied, "Use It");
    ASSERT_TRUE(waitFor(
        [&] { return table()->mutableTranscriptions().value(1) == "typed before the move"; }));
    EXPECT_TRUE(h.session().hasReferenceText());
    selectRow(table(), 2);
    QTest::keyClicks(QApplication::focusWidget(), "typed in the copy");
    saveRows();
    EXPECT_EQ(indexedIdentity(), QFileInfo(h.storePath()).fileName());
    EXPECT_TRUE(readFile(lessonStore).contains("typed before the move"));

    // Moved: found under the copy's path, where it was last saved.
    const QString moved = folder.filePath("elsewhere/moved.mp3");
    ASSERT_TRUE(QFile::rename(lesson, moved));
    EXPECT_TRUE(openAnswering(moved, "Use It").contains(copied));
    ASSERT_TRUE(
        waitFor([&] { return table()->mutableTranscriptions().value(2) == "typed in the copy"; }));
    EXPECT_EQ(table()->mutableTranscriptions().value(1), "typed before the move");

    // A file with a transcript of its own is not asked about.
    AlertAnswerer none("Use It");
    ASSERT_TRUE(h.open(copied));
    h.finishAutoSaves();
    EXPECT_TRUE(none.seen().isEmpty());
    EXPECT_EQ(table()->mutableTranscriptions().value(2), "typed in the copy");
}
