// SPDX-License-Identifier: GPL-3.0-or-later
// Fixing the cutting by hand in the real window offscreen, with real key
// presses: a split at the play head and at the caret, a merge, a moved start,
// each undone and redone exactly; the store after the save, and the edited
// cutting back at the next open although it has fewer rows than a fresh one.
// A cut at the sentences of an aligned reference, its rows and uncertain starts.

#include "app/FileIdentity.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "localization/LocalizedTexts.h"
#include "reference/ReferenceStore.h"
#include "support/TestSupport.h"
#include "transcript/DocumentManager.h"
#include "transcript/LrcReader.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>
#include <gtest/gtest.h>
#include <cmath>

using TestSupport::fixture;
using TestSupport::readFile;
using TestSupport::writeFile;

namespace {

struct Cutting
{
    QList<double> starts;
    QStringList texts;
};

Cutting cuttingOf(WindowHarness& h)
{
    Cutting c;
    for (const Segment& s : h.engine().segments())
        c.starts.append(s.start);
    c.texts = h.session().transcriptionTableView()->mutableTranscriptions();
    return c;
}

double onFrame(double seconds)
{
    return std::round(seconds / 0.02) * 0.02;
}

// Stamps are written truncated to the millisecond: compare to a little over one.
void expectSame(const Cutting& a, const Cutting& b, const char* when, double tolerance = 1e-9)
{
    SCOPED_TRACE(when);
    EXPECT_EQ(a.texts, b.texts);
    ASSERT_EQ(a.starts.size(), b.starts.size());
    for (qsizetype i = 0; i < a.starts.size(); ++i)
        EXPECT_NEAR(a.starts[i], b.starts[i], tolerance) << "start " << i;
}

QLineEdit* focusedRow(WindowHarness& h, int row)
{
    TranscriptionTableView* table = h.session().transcriptionTableView();
    if (!waitFor([&] { return QApplication::focusWidget() == table->editorForRow(row); }))
        return nullptr;
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

void key(int code, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(code), modifiers);
}

// The play head parked at `seconds`, as after a pause there.
void parkPlayHead(WindowHarness& h, double seconds)
{
    h.engine().pausePlayback();
    h.engine().audioPlayer()->setCurrentTime(seconds);
}

// The store file's stamps, in seconds.
QList<double> storedStarts(const QString& path)
{
    return Lrc::readStampedLines(QString::fromUtf8(readFile(path))).stamps;
}

} // namespace

TEST(SessionCutting, SplitMergeMoveUndoAndTheEditedCuttingComingBack)
{
    QTemporaryDir folder;
    const QString lesson = folder.filePath("lesson.wav");
    ASSERT_TRUE(QFile::copy(fixture("speech.wav"), lesson));
    {
        WindowHarness h;
        QApplication::setActiveWindow(&h.window());
        ASSERT_TRUE(h.open(lesson));
        ViewController& session = h.session();
        TranscriptionTableView* table = session.transcriptionTableView();
        const qsizetype fresh = h.engine().numberOfSegments();
        ASSERT_EQ(fresh, 5);
        QLineEdit* row = focusedRow(h, 0);
        ASSERT_NE(row, nullptr);
        QTest::keyClicks(row, "good morning everyone");
        key(Qt::Key_Down);
        row = focusedRow(h, 1);
        ASSERT_NE(row, nullptr);
        QTest::keyClicks(row, "today we  will practise");
        const Cutting typed = cuttingOf(h);

        // Ctrl+B with the caret after "today we": the row is cut there, the
        // spaces at the cut dropped, and the play head's frame is the boundary.
        row->setCursorPosition(8);
        const Segment second = h.engine().segments()[1];
        parkPlayHead(h, second.start + 0.8312);
        key(Qt::Key_B, Qt::ControlModifier);
        const Cutting split = cuttingOf(h);
        ASSERT_EQ(split.starts.size(), 6);
        EXPECT_EQ(split.texts.mid(0, 3),
                  (QStringList{"good morning everyone", "today we", "will practise"}));
        EXPECT_NEAR(split.starts[2], onFrame(second.start + 0.8312), 1e-9);
        EXPECT_NEAR(h.engine().segments()[1].end(), split.starts[2], 1e-9);
        EXPECT_EQ(session.currentSegmentIndex(), 2);
        EXPECT_EQ(table->model()->rowCount(), 6);
        EXPECT_EQ(session.waveformView()->segments().size(), 6);
        EXPECT_TRUE(session.statusText().contains(" | Segments: 6 | ")) << session.statusText().toStdString();

        // The store after the save holds the new cutting as its stamps.
        h.finishAutoSaves();
        const QList<double> stored = storedStarts(h.storePath());
        ASSERT_EQ(stored.size(), 6);
        for (qsizetype i = 0; i < 6; ++i)
            EXPECT_NEAR(stored[i], split.starts[i], 0.0011) << i;

        // Ctrl+J on row 0 joins it with row 1 with one space.
        table->setCurrentSegment(0);
        row = focusedRow(h, 0);
        ASSERT_NE(row, nullptr);
        key(Qt::Key_J, Qt::ControlModifier);
        const Cutting merged = cuttingOf(h);
        ASSERT_EQ(merged.starts.size(), 5);
        EXPECT_EQ(merged.texts[0], "good morning everyone today we");
        EXPECT_NEAR(merged.starts[1], split.starts[2], 1e-9);

        // A start moved by the strip's drag, then nudged by the keyboard: one
        // step on the stack for the same boundary.
        emit session.waveformView()->boundaryMoved(2, merged.starts[2] - 0.3333);
        const double dragged = onFrame(merged.starts[2] - 0.3333);
        EXPECT_NEAR(h.engine().segments()[2].start, dragged, 1e-9);
        EXPECT_NEAR(h.engine().segments()[1].end(), dragged, 1e-9);
        table->setCurrentSegment(2);
        ASSERT_NE(focusedRow(h, 2), nullptr);
        key(Qt::Key_Left, Qt::AltModifier);
        const Cutting moved = cuttingOf(h);
        EXPECT_NEAR(moved.starts[2], dragged - 0.1, 1e-9);
        EXPECT_EQ(moved.texts, merged.texts);
        EXPECT_EQ(session.cuttingEdits()->count(), 3);

        // Typing in a row is undone by the row first; then the keys step back
        // through the cutting, each state exactly, and forward again.
        row = focusedRow(h, 2);
        ASSERT_NE(row, nullptr);
        QTest::keyClicks(row, "x");
        key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(cuttingOf(h).texts, moved.texts);
        EXPECT_EQ(session.cuttingEdits()->index(), 3);
        key(Qt::Key_Z, Qt::ControlModifier);
        expectSame(cuttingOf(h), merged, "move undone");
        key(Qt::Key_Z, Qt::ControlModifier);
        expectSame(cuttingOf(h), split, "merge undone");
        key(Qt::Key_Z, Qt::ControlModifier);
        expectSame(cuttingOf(h), typed, "split undone");
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        expectSame(cuttingOf(h), moved, "all redone");

        // What cannot be cut: a part under 0.1 s says so and changes nothing;
        // the last segment has nothing to merge with.
        const Segment third = h.engine().segments()[3];
        parkPlayHead(h, third.start + 0.04);
        key(Qt::Key_B, Qt::ControlModifier);
        EXPECT_EQ(session.statusBar()->currentMessage(), QString::fromUtf8(Texts::SplitRefused));
        table->setCurrentSegment(4);
        ASSERT_NE(focusedRow(h, 4), nullptr);
        key(Qt::Key_J, Qt::ControlModifier);
        expectSame(cuttingOf(h), moved, "refused edits");
        EXPECT_EQ(session.cuttingEdits()->count(), 3);

        // Clear is a step too.
        {
            AlertAnswerer ok(QStringLiteral("OK"));
            session.clearTranscription();
            ASSERT_TRUE(ok.waitForAlerts(1));
        }
        // The sheet's answer reaches the session after the press.
        ASSERT_TRUE(waitFor([&] { return cuttingOf(h).texts == QStringList(5, QString()); }));
        session.undoCuttingEdit();
        expectSame(cuttingOf(h), moved, "clear undone");

        // One segment fewer than a fresh analysis gives.
        table->setCurrentSegment(3);
        // Offscreen, nothing gives the window back its activation after an alert.
        QApplication::setActiveWindow(&h.window());
        ASSERT_NE(focusedRow(h, 3), nullptr);
        key(Qt::Key_J, Qt::ControlModifier);
        const Cutting kept = cuttingOf(h);
        ASSERT_EQ(kept.starts.size(), 4);
        h.finishAutoSaves();

        // A merge while the lesson is analysed again does nothing; the
        // analysis reads the edited cutting back from the store.
        session.processAudioFile();
        session.mergeWithNextSegment();
        ASSERT_TRUE(waitFor([&] { return !session.isProcessing(); }));
        expectSame(cuttingOf(h), kept, "analysed again", 0.0011);
        // The new analysis started a new cutting: nothing is left to undo.
        EXPECT_FALSE(session.cuttingEdits()->canUndo());

        // Another lesson, an undo that has nothing to act on, and the edited
        // one again: its cutting comes back although it has fewer rows than
        // the recording's fresh cutting.
        ASSERT_TRUE(h.open(fixture("speech.mp3")));
        const Cutting other = cuttingOf(h);
        session.undoCuttingEdit();
        expectSame(cuttingOf(h), other, "undo in another lesson");
        ASSERT_TRUE(h.open(lesson));
        expectSame(cuttingOf(h), kept, "reopened", 0.0011);
    }
}

TEST(SessionCutting, CutAtSentencesCarriesRowsByTheirMiddleAndMarksUncertainStarts)
{
    QTemporaryDir folder;
    const QString lesson = folder.filePath("lesson.wav");
    ASSERT_TRUE(QFile::copy(fixture("speech.wav"), lesson));
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    ASSERT_TRUE(h.open(lesson));
    ViewController& session = h.session();
    WaveformView* strip = session.waveformView();
    auto* command = h.window().findChild<QAction*>(QStringLiteral("menuCutAtSentences"));
    ASSERT_NE(command, nullptr);
    ASSERT_EQ(h.engine().numberOfSegments(), 5);
    const QStringList rows = {"good morning", "everyone", "", "see you", "goodbye"};
    for (int i = 0; i < 5; ++i) {
        session.transcriptionTableView()->setCurrentSegment(i);
        QLineEdit* row = focusedRow(h, i);
        ASSERT_NE(row, nullptr);
        QTest::keyClicks(row, rows[i]);
    }

    // Without a reference, or with one without times, there is nothing to cut at.
    EXPECT_FALSE(command->isEnabled());
    const QString plain = folder.filePath("plain.txt");
    writeFile(plain, "Good morning everyone.\nSee you. Goodbye.\n");
    session.attachReferenceTextFrom(plain);
    ASSERT_TRUE(waitFor([&] { return session.hasReferenceText(); }));
    ASSERT_TRUE(dontAlign());
    EXPECT_FALSE(command->isEnabled());
    session.cutSegmentsAtSentences();
    EXPECT_EQ(session.cuttingEdits()->count(), 0);

    // An aligned reference: a sentence before row 0's middle, one holding
    // rows 0 to 2 whose start is uncertain, one holding the rest.
    const SegmentList old = h.engine().segments();
    auto middle = [&](int i) { return old[i].start + old[i].duration / 2.0; };
    const double second = middle(0) / 2.0;
    const double third = (middle(2) + old[3].start) / 2.0;
    const AlignedSentences sentences = {{"Hello.", 0.04, second, false},
                                        {"Good morning everyone.", second, third, true},
                                        {"See you. Goodbye.", third, old.last().end(), false}};
    h.finishAutoSaves();
    ASSERT_TRUE(ReferenceStore(DocumentManager(h.documentsPath()))
                    .save(*FileIdentity::uniqueIdentifierForFileAtPath(lesson),
                          ReferenceText::aligned("story.txt", sentences, "en")));
    ASSERT_TRUE(h.open(lesson));
    const Cutting before = cuttingOf(h);
    ASSERT_EQ(before.texts, rows);
    EXPECT_TRUE(command->isEnabled());

    command->trigger();
    const Cutting cut = cuttingOf(h);
    ASSERT_EQ(cut.starts.size(), 3);
    EXPECT_NEAR(cut.starts[0], before.starts[0], 1e-9);
    EXPECT_NEAR(cut.starts[1], onFrame(second), 1e-9);
    EXPECT_NEAR(cut.starts[2], onFrame(third), 1e-9);
    EXPECT_EQ(cut.texts, (QStringList{"", "good morning everyone", "see you goodbye"}));
    EXPECT_EQ(session.transcriptionTableView()->model()->rowCount(), 3);
    EXPECT_EQ(strip->segments().size(), 3);
    EXPECT_EQ(strip->uncertainStarts(), QSet<qint64>{1});
    EXPECT_EQ(strip->accessibleDescription(), "Uncertain segment starts: 2");
    EXPECT_EQ(session.statusBar()->currentMessage(), "Segments now: 3");
    EXPECT_EQ(session.cuttingEdits()->count(), 1);
    h.finishAutoSaves();
    EXPECT_EQ(storedStarts(h.storePath()).size(), 3);

    session.undoCuttingEdit();
    expectSame(cuttingOf(h), before, "cut undone");
    EXPECT_TRUE(strip->uncertainStarts().isEmpty());
    EXPECT_TRUE(strip->accessibleDescription().isEmpty());
    session.redoCuttingEdit();
    expectSame(cuttingOf(h), cut, "cut redone");
    EXPECT_EQ(strip->uncertainStarts(), QSet<qint64>{1});

    // The learner's moves: the other start keeps the mark, a moved uncertain
    // one loses it until the move is undone.
    emit strip->boundaryMoved(2, cut.starts[2] - 0.2);
    EXPECT_EQ(strip->uncertainStarts(), QSet<qint64>{1});
    emit strip->boundaryMoved(1, cut.starts[1] + 0.2);
    EXPECT_TRUE(strip->uncertainStarts().isEmpty());
    session.undoCuttingEdit();
    EXPECT_EQ(strip->uncertainStarts(), QSet<qint64>{1});

    // Opened again, the uncertain start unmoved is marked again.
    h.finishAutoSaves();
    ASSERT_TRUE(h.open(lesson));
    EXPECT_EQ(strip->segments().size(), 3);
    EXPECT_EQ(strip->uncertainStarts(), QSet<qint64>{1});
}
