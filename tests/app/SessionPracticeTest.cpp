// SPDX-License-Identifier: GPL-3.0-or-later
// The practice record in the real window offscreen: checks, hints and time
// recorded and kept beside the transcript, shown in a row's tooltip, and
// Practise Hard Sentences stepping through the segments to come back to.

#include "../playback/VirtualClock.h"
#include "app/FileIdentity.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "practice/PracticeStore.h"
#include "transcript/DocumentManager.h"
#include "views/CheckBar.h"
#include "views/TranscriptionTableView.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <utility>

using TestSupport::fixture;
using TestSupport::writeFile;

namespace {

const QDate kToday(2026, 3, 10);

class SessionPractice : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        lesson = folder.filePath("lesson.wav");
        ASSERT_TRUE(QFile::copy(fixture("lesson_95s.wav"), lesson));
    }

    void open(WindowHarness& h)
    {
        h.session().setPracticeDaySource([] { return kToday; });
        QApplication::setActiveWindow(&h.window());
        ASSERT_TRUE(h.open(lesson));
        ASSERT_GE(h.engine().numberOfSegments(), 5);
        table = h.session().transcriptionTableView();
        ASSERT_TRUE(waitFor([&] { return table->currentIndex() == 0; }));
    }

    // One sentence a segment: "Sentence N is here."
    void attachReference(WindowHarness& h)
    {
        QStringList lines;
        for (qsizetype i = 0; i < h.engine().numberOfSegments(); ++i)
            lines << QStringLiteral("Sentence %1 is here.").arg(i + 1);
        const QString path = folder.filePath("lesson.txt");
        writeFile(path, lines.join(u'\n').toUtf8());
        h.session().attachReferenceTextFrom(path);
        ASSERT_TRUE(waitFor([&] { return h.session().hasReferenceText(); }));
        ASSERT_TRUE(dontAlign());
    }

    QString practicePath(WindowHarness& h)
    {
        const DocumentManager documents(h.documentsPath());
        return PracticeStore(documents).pathForIdentity(
            *FileIdentity::uniqueIdentifierForFileAtPath(lesson));
    }

    // As a std::string, which a failure prints readably.
    std::string toolTip(qint64 row)
    {
        return table->model()
            ->data(table->model()->index(int(row), 1), Qt::ToolTipRole)
            .toString()
            .toStdString();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }

    bool reachesRow(qint64 row)
    {
        return waitFor([&] { return table->currentIndex() == row; }, 5000);
    }

    QTemporaryDir folder;
    QString lesson;
    TranscriptionTableView* table = nullptr;
};

} // namespace

TEST_F(SessionPractice, ChecksHintsAndActiveTimeAreKeptBesideTheTranscriptAndShownOnTheRow)
{
    VirtualClock clock;
    WindowHarness h;
    h.setClock(clock);
    open(h);
    h.engine().pausePlayback();

    // Unused, it changes nothing: no file, no tooltip, and no hard sentence.
    clock.advance(5);
    EXPECT_FALSE(QFile::exists(practicePath(h)));
    EXPECT_FALSE(table->model()->data(table->model()->index(0, 1), Qt::ToolTipRole).isValid());
    auto* hardItem = h.window().findChild<QAction*>("menuPractiseHard");
    hardItem->trigger();
    EXPECT_FALSE(h.session().isPractisingHardSentences());
    EXPECT_FALSE(hardItem->isChecked());
    EXPECT_EQ(h.session().statusBar()->currentMessage(), "No hard sentences in this lesson");

    attachReference(h);
    QTest::keyClicks(QApplication::focusWidget(), "Sentence 1 is");
    press(Qt::Key_Return, Qt::ControlModifier);
    press(Qt::Key_H, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), " here");
    press(Qt::Key_Return, Qt::ControlModifier);
    std::optional<PracticeRecord> saved = PracticeRecord::fromJson([&] {
        QFile file(practicePath(h));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }());
    ASSERT_TRUE(saved) << "each check and hint is saved at once";
    EXPECT_EQ(saved->segment(0).checks, 2);
    EXPECT_EQ(saved->segment(0).hints, 1);
    EXPECT_EQ(saved->segment(0).checkDates, QList<QDate>{kToday});

    // Time counts while the window is active, for the segment the play head is in.
    clock.advance(3);
    QWidget elsewhere;
    elsewhere.show();
    QApplication::setActiveWindow(&elsewhere);
    ASSERT_FALSE(h.session().isActiveWindow());
    clock.advance(4);
    QApplication::setActiveWindow(&h.window());
    EXPECT_EQ(toolTip(0), "Checked 2 times, 1 hint · last 100%, best 100% · 3 s");
    EXPECT_EQ(toolTip(1), "");

    // A change of the cutting leaves each record on its sentence: a split of
    // segment 0 moves segment 1's to row 2, and the undo brings it back.
    const std::string first = toolTip(0);
    h.session().didSelectSegmentAtIndex(1);
    clock.advance(2);
    ASSERT_EQ(toolTip(1), "2 s");
    h.session().didSelectSegmentAtIndex(0);
    h.engine().pausePlayback();
    const Segment zero = h.engine().segments()[0];
    h.engine().audioPlayer()->setCurrentTime(zero.start + zero.duration / 2);
    h.session().splitSegmentAtPlayHead();
    EXPECT_EQ(toolTip(0), first);
    EXPECT_EQ(toolTip(1), "");
    EXPECT_EQ(toolTip(2), "2 s");
    h.session().undoCuttingEdit();
    EXPECT_EQ(toolTip(0), first);
    EXPECT_EQ(toolTip(1), "2 s");

    // Closing the lesson saves the time; the record comes back with it.
    ASSERT_TRUE(h.open(lesson));
    ASSERT_TRUE(reachesRow(0));
    EXPECT_DOUBLE_EQ(h.session().practiceRecord().segment(0).secondsSpent, 3.0);
    EXPECT_EQ(toolTip(0), "Checked 2 times, 1 hint · last 100%, best 100% · 3 s");

    // A stored record that cannot be read is said once and never saved over.
    const QByteArray damaged("{\"version\": 1, \"segments\": [");
    writeFile(practicePath(h), damaged);
    ASSERT_TRUE(h.open(lesson));
    ASSERT_TRUE(reachesRow(0));
    EXPECT_TRUE(h.session().statusBar()->currentMessage().startsWith(
        "Your practice record could not be read and is not saved over: "))
        << h.session().statusBar()->currentMessage().toStdString();
    h.session().checkCurrentSegment();
    h.session().savePracticeRecord();
    QFile file(practicePath(h));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), damaged);
}

TEST_F(SessionPractice, HardSentencesAreSteppedThroughInOrderWrappingAndLeaveWithTheCommand)
{
    VirtualClock clock;
    WindowHarness h;
    h.setClock(clock);
    // 1 scored low, 3 due for its first review, 4 below the threshold; 2
    // scored well today and 0 was never checked.
    PracticeRecord record;
    record.recordCheck(1, 0.5, kToday);
    record.recordCheck(2, 0.95, kToday);
    record.recordCheck(3, 0.95, kToday.addDays(-3));
    record.recordCheck(4, 0.79, kToday);
    const DocumentManager documents(h.documentsPath());
    ASSERT_TRUE(PracticeStore(documents).save(*FileIdentity::uniqueIdentifierForFileAtPath(lesson),
                                              record));
    open(h);
    attachReference(h);
    EXPECT_EQ(h.session().checkBar()->noteText(), "1 due for review");

    auto* hardItem = h.window().findChild<QAction*>("menuPractiseHard");
    press(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(h.session().isPractisingHardSentences());
    EXPECT_TRUE(hardItem->isChecked());
    ASSERT_TRUE(reachesRow(1));
    EXPECT_TRUE(h.session().statusText().endsWith(" | Hard sentences: 3 left"))
        << h.session().statusText().toStdString();

    // Down and Up: only the hard ones, in order, round the end.
    const std::pair<Qt::Key, qint64> steps[] = {
        {Qt::Key_Down, 3}, {Qt::Key_Down, 4}, {Qt::Key_Down, 1}, {Qt::Key_Up, 4}, {Qt::Key_Up, 3}};
    for (const auto& [key, row] : steps) {
        press(key);
        ASSERT_TRUE(reachesRow(row)) << row;
        EXPECT_EQ(h.session().currentSegmentIndex(), row);
    }

    // Checked right, the due segment is no longer hard nor due.
    QTest::keyClicks(QApplication::focusWidget(), "Sentence 4 is here.");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(h.session().statusText().endsWith(" | Hard sentences: 2 left"));
    EXPECT_EQ(h.session().checkBar()->noteText(), "");

    // Past midnight, with the window left open: today's first checks are
    // due tomorrow, and the bar says so within a second.
    QDate day = kToday;
    h.session().setPracticeDaySource([&day] { return day; });
    day = kToday.addDays(1);
    clock.advance(1);
    EXPECT_EQ(h.session().checkBar()->noteText(), "3 due for review");
    day = kToday;
    clock.advance(1);
    EXPECT_EQ(h.session().checkBar()->noteText(), "");
    press(Qt::Key_Down);
    ASSERT_TRUE(reachesRow(4));

    // The same command leaves the mode; Down is the next segment again.
    hardItem->trigger();
    EXPECT_FALSE(h.session().isPractisingHardSentences());
    EXPECT_FALSE(hardItem->isChecked());
    EXPECT_FALSE(h.session().statusText().contains("Hard sentences"));
    press(Qt::Key_Down);
    ASSERT_TRUE(reachesRow(5));

    // Opening a lesson leaves it too, with the status as it was.
    hardItem->trigger();
    ASSERT_TRUE(h.session().isPractisingHardSentences());
    ASSERT_TRUE(h.open(lesson));
    EXPECT_FALSE(h.session().isPractisingHardSentences());
    EXPECT_FALSE(hardItem->isChecked());
    EXPECT_FALSE(h.session().statusText().contains("Hard sentences"));
}
