// SPDX-License-Identifier: GPL-3.0-or-later
// The learner's loop through the real window offscreen: open a lesson, type,
// move on, come back to it; the auto-save's throttle on its own clock.

#include "app/AutoSaveQueue.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "support/TestSupport.h"
#include "transcript/LrcLine.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using TestSupport::fixture;
using TestSupport::readFile;
using TestSupport::writeFile;

namespace {

QStringList storedLines(const QString& path)
{
    return QString::fromUtf8(readFile(path)).split(u'\n');
}

// Clicks a row as a learner does; the table reports the selection.
void clickRow(TranscriptionTableView* table, int row)
{
    table->scrollTo(table->model()->index(row, 0));
    const QRect cell = table->visualRect(table->model()->index(row, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    QApplication::processEvents();
}

// Types into the row's editor, which takes the focus when its row is current.
void typeIntoRow(TranscriptionTableView* table, int row, const QString& text)
{
    ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == table->editorForRow(row); }))
        << "row " << row << " has no focus";
    QTest::keyClicks(QApplication::focusWidget(), text);
}

class Session : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        lesson = folder.filePath("lesson.wav");
        ASSERT_TRUE(QFile::copy(fixture("lesson_95s.wav"), lesson));
    }

    QTemporaryDir folder;
    QString lesson;
};

} // namespace

TEST_F(Session, TypedRowsAreSavedOnMovingOnAndComeBackWithTheirBoundaries)
{
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    TranscriptionTableView* table = h.session().transcriptionTableView();
    const qsizetype segments = h.engine().numberOfSegments();
    ASSERT_GT(segments, 6);
    EXPECT_EQ(table->model()->rowCount(), segments);
    EXPECT_TRUE(h.engine().isPlaying());
    EXPECT_EQ(h.engine().currentSegmentIndex(), 0);
    EXPECT_EQ(h.window().windowTitle(), "lesson");

    // The first report of row 0 after an opening writes the empty rows at once.
    h.finishAutoSaves();
    const QString store = h.storePath();
    ASSERT_TRUE(QFile::exists(store));
    EXPECT_EQ(storedLines(store).size(), segments);
    EXPECT_FALSE(QFile::exists(store + ".temp"));

    clickRow(table, 3);
    typeIntoRow(table, 3, "third sentence");
    clickRow(table, 4);
    typeIntoRow(table, 4, "fourth sentence");
    h.advanceAutoSaveClock(AutoSaveQueue::kThrottleSeconds);
    clickRow(table, 5);
    EXPECT_EQ(h.session().currentSegmentIndex(), 5);
    EXPECT_EQ(h.engine().currentSegmentIndex(), 5);
    h.finishAutoSaves();

    const QStringList lines = storedLines(store);
    ASSERT_EQ(lines.size(), segments);
    EXPECT_EQ(lines[3], table->generateLRCStringForText("third sentence", 3));
    EXPECT_EQ(lines[4], table->generateLRCStringForText("fourth sentence", 4));
    // The background job builds from its snapshot the lines the export builds
    // from the live table.
    const QString exported = folder.filePath("export.lrc");
    const QByteArray autoSaved = readFile(store);
    h.session().exportTranscriptionTo(exported);
    EXPECT_EQ(readFile(exported), autoSaved);

    // Boundaries saved with the texts win over a fresh cutting: move one.
    QStringList edited = lines;
    const double movedStart = h.engine().segments()[2].start + 0.25;
    edited[2] = Lrc::formatLine(movedStart, QString());
    writeFile(store, edited.join(u'\n').toUtf8());
    ASSERT_TRUE(h.open(lesson));
    EXPECT_EQ(table->mutableTranscriptions().value(3), "third sentence");
    EXPECT_EQ(table->mutableTranscriptions().value(4), "fourth sentence");
    EXPECT_NEAR(h.engine().segments()[2].start, movedStart, 0.001);

    // A moved file is another file: its rows start empty.
    const QString moved = folder.filePath("moved.wav");
    ASSERT_TRUE(QFile::rename(lesson, moved));
    ASSERT_TRUE(h.open(moved));
    EXPECT_EQ(table->model()->rowCount(), h.engine().numberOfSegments());
    EXPECT_TRUE(table->mutableTranscriptions().join(QString()).isEmpty());
}

TEST_F(Session, AutoSaveWaitsFiveSecondsAfterTheLastOne)
{
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    h.finishAutoSaves();
    TranscriptionTableView* table = h.session().transcriptionTableView();
    const QString store = h.storePath();
    const QByteArray empty = readFile(store);
    ASSERT_FALSE(empty.isEmpty());

    typeIntoRow(table, 0, "first");
    h.advanceAutoSaveClock(4.5);
    clickRow(table, 1);
    h.finishAutoSaves();
    EXPECT_EQ(readFile(store), empty) << "a save 4.5 s after the last one";

    // Five seconds after the last save started, clicking the row that is
    // already current plays nothing new but saves.
    h.advanceAutoSaveClock(0.5);
    clickRow(table, 1);
    h.finishAutoSaves();
    EXPECT_EQ(h.session().currentSegmentIndex(), 1);
    EXPECT_TRUE(storedLines(store).value(0).endsWith("]first"));
}

TEST_F(Session, ClearEmptiesEveryRowAfterConfirmingAndImportBringsRowsBack)
{
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    TranscriptionTableView* table = h.session().transcriptionTableView();
    typeIntoRow(table, 0, "kept");
    clickRow(table, 2);
    const QString exported = folder.filePath("mine.lrc");
    typeIntoRow(table, 2, "also kept");
    h.session().exportTranscriptionTo(exported);

    {
        AlertAnswerer answer("Cancel");
        h.session().clearTranscription();
        ASSERT_TRUE(answer.waitForAlerts(1));
        EXPECT_EQ(answer.seen()[0].text, "Warning");
        EXPECT_EQ(answer.seen()[0].informativeText, "Are you sure to clear dictation?");
    }
    EXPECT_EQ(table->mutableTranscriptions().value(0), "kept");
    {
        AlertAnswerer answer("OK");
        h.session().clearTranscription();
        ASSERT_TRUE(answer.waitForAlerts(1));
    }
    ASSERT_TRUE(waitFor([&] { return h.session().currentSegmentIndex() == 0; }));
    EXPECT_TRUE(table->mutableTranscriptions().join(QString()).isEmpty());
    EXPECT_EQ(table->model()->rowCount(), h.engine().numberOfSegments());

    // Import through its panel, which lists transcripts.
    QStringList filters;
    QTimer panelAnswer;
    panelAnswer.setInterval(10);
    QObject::connect(&panelAnswer, &QTimer::timeout, [&] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* panel = qobject_cast<QFileDialog*>(widget);
            if (!panel || !panel->isVisible())
                continue;
            filters = panel->nameFilters();
            if (auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
                name->setText(exported);
            if (panel->selectedFiles().value(0) == exported)
                static_cast<QDialog*>(panel)->accept();
        }
    });
    panelAnswer.start();
    h.session().importTranscription();
    panelAnswer.stop();
    EXPECT_EQ(filters, QStringList{"Transcripts (*.lrc)"});
    EXPECT_EQ(table->mutableTranscriptions().value(0), "kept");
    EXPECT_EQ(table->mutableTranscriptions().value(2), "also kept");
    EXPECT_EQ(h.session().currentSegmentIndex(), 0);
    EXPECT_TRUE(h.engine().isPlaying());
}

TEST_F(Session, ImportRefusesATranscriptLongerThanTheAudioAndLeavesTheRows)
{
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    TranscriptionTableView* table = h.session().transcriptionTableView();
    typeIntoRow(table, 0, "mine");
    const SegmentList before = h.engine().segments();

    const QString tooLong = folder.filePath("long.lrc");
    writeFile(tooLong, "[00:00.000]one\n[01:00.000]two\n[02:30.000]past the end");
    {
        AlertAnswerer answer("OK");
        h.session().importTranscriptionFrom(tooLong);
        ASSERT_TRUE(answer.waitForAlerts(1));
        EXPECT_EQ(answer.seen()[0].text, "Invalid File");
        EXPECT_EQ(answer.seen()[0].informativeText, "lyric duration is too long");
    }
    EXPECT_EQ(table->mutableTranscriptions().value(0), "mine");
    EXPECT_EQ(h.engine().segments().size(), before.size());
    EXPECT_EQ(h.session().currentSegmentIndex(), 0);
    EXPECT_TRUE(h.engine().isPlaying()) << "the session is reset to segment 0 and plays";

    // One that ends exactly at the audio's end is taken.
    const double total = h.engine().getTotalDuration();
    const QString exact = folder.filePath("exact.lrc");
    writeFile(exact, ("[00:00.000]a\n" + Lrc::formatLine(total / 2, "b")).toUtf8());
    h.session().importTranscriptionFrom(exact);
    EXPECT_EQ(table->model()->rowCount(), 2);
    EXPECT_EQ(table->mutableTranscriptions().value(1), "b");
}

TEST(SessionWithoutFile, ImportAsksForAFileFirst)
{
    WindowHarness h;
    AlertAnswerer answer("OK");
    h.session().importTranscription();
    ASSERT_TRUE(answer.waitForAlerts(1));
    EXPECT_EQ(answer.seen()[0].text, "Warning");
    EXPECT_EQ(answer.seen()[0].informativeText, "Please open an audio file first");
}
