// SPDX-License-Identifier: GPL-3.0-or-later
// The six shortcuts while the learner types in a dictation row, and repeat
// mode counting its plays on a virtual clock.

#include "../playback/VirtualClock.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "preferences/KeyboardShortcut.h"
#include "preferences/ObjectStorage.h"
#include "support/TestSupport.h"
#include "transcript/LrcLine.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

class SessionKeys : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QApplication::setActiveWindow(&h.window());
        ASSERT_TRUE(h.open(fixture("speech.wav")));
        table = h.session().transcriptionTableView();
        segments = h.engine().numberOfSegments();
        ASSERT_GE(segments, 3);
        ASSERT_TRUE(focusInRow(0));
    }

    bool focusInRow(int row)
    {
        return waitFor([&] { return QApplication::focusWidget() == table->editorForRow(row); });
    }

    // A key press as the window system delivers it: to the focused widget.
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
        QApplication::processEvents();
    }

    void storeShortcut(const char* key, qint64 keyCode, quint64 flags)
    {
        ObjectStorage(h.defaults()).setKeyboardShortcut(KeyboardShortcut(keyCode, flags), key);
    }

    qint64 current() { return h.session().currentSegmentIndex(); }

    WindowHarness h;
    TranscriptionTableView* table = nullptr;
    qsizetype segments = 0;
};

} // namespace

TEST_F(SessionKeys, ArrowsStepThroughSegmentsFromTheRowBeingTyped)
{
    // On the first segment, previous and first do nothing.
    press(Qt::Key_Up);
    EXPECT_EQ(current(), 0);
    press(Qt::Key_Slash, Qt::ControlModifier);
    EXPECT_EQ(current(), 0);
    EXPECT_EQ(h.engine().currentSegmentIndex(), 0);

    press(Qt::Key_Down);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(h.engine().currentSegmentIndex(), 1);
    EXPECT_TRUE(h.engine().isPlaying());
    EXPECT_TRUE(focusInRow(1)) << "the editor follows the current row";

    for (qsizetype i = 1; i < segments - 1; ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(current(), segments - 1);
    press(Qt::Key_Down);
    EXPECT_EQ(current(), 0) << "after the last segment comes the first";

    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Slash, Qt::ControlModifier);
    EXPECT_EQ(current(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    EXPECT_EQ(current(), 0);
    // The row got none of these keys as text.
    EXPECT_TRUE(table->mutableTranscriptions().join(QString()).isEmpty());
}

TEST_F(SessionKeys, ARowEnteredByArrowOrByAClickInTheStripTakesTheKeysAfterItsText)
{
    QTest::keyClicks(QApplication::focusWidget(), "ab");
    press(Qt::Key_Down);
    ASSERT_TRUE(focusInRow(1));
    QTest::keyClicks(QApplication::focusWidget(), "one");
    press(Qt::Key_Up);
    ASSERT_TRUE(focusInRow(0));
    QTest::keyClicks(QApplication::focusWidget(), "c");
    EXPECT_EQ(table->mutableTranscriptions().value(0), "abc") << "typed after what was there";

    // A click in the waveform strip selects a segment, and its row takes the keys.
    WaveformView* strip = h.session().waveformView();
    const QPoint inSegment1(int(strip->pixelsPerSecond() * h.engine().segments()[1].start) + 3,
                            strip->height() / 2);
    QTest::mouseClick(strip, Qt::LeftButton, {}, inSegment1);
    EXPECT_EQ(current(), 1);
    ASSERT_TRUE(focusInRow(1));
    QTest::keyClicks(QApplication::focusWidget(), "!");
    // Clicked again where it is already selected: the keys stay with the row.
    QTest::mouseClick(strip, Qt::LeftButton, {}, inSegment1);
    EXPECT_TRUE(focusInRow(1));
    QTest::keyClicks(QApplication::focusWidget(), "?");
    EXPECT_EQ(table->mutableTranscriptions().value(1), "one!?");
}

TEST_F(SessionKeys, ReturnPausesAndResumesAndControlRTogglesRepeat)
{
    ASSERT_TRUE(h.engine().isPlaying());
    press(Qt::Key_Return);
    EXPECT_FALSE(h.engine().isPlaying());
    EXPECT_TRUE(h.session().statusText().contains(" | Pause | "))
        << h.session().statusText().toStdString();
    press(Qt::Key_Return);
    EXPECT_TRUE(h.engine().isPlaying());

    const bool repeat = h.engine().isRepeatMode();
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_NE(h.engine().isRepeatMode(), repeat);
    // Caps Lock changes the letter's case, not the shortcut.
    QKeyEvent capsPress(QEvent::KeyPress, Qt::Key_R, Qt::ControlModifier, 0, 0, 0x2, "R");
    QApplication::sendEvent(QApplication::focusWidget(), &capsPress);
    EXPECT_EQ(h.engine().isRepeatMode(), repeat);
    EXPECT_EQ(table->mutableTranscriptions().value(0), QString());
}

TEST_F(SessionKeys, LettersAndUnboundKeysReachTheRow)
{
    QTest::keyClicks(QApplication::focusWidget(), "ab");
    press(Qt::Key_Left);
    QTest::keyClicks(QApplication::focusWidget(), "X");
    EXPECT_EQ(table->mutableTranscriptions().value(0), "aXb");
    EXPECT_EQ(current(), 0);

    // Another text input in the window keeps every key, bound or not.
    auto* search = new QLineEdit(&h.window());
    search->show();
    search->setFocus();
    ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == search; }));
    press(Qt::Key_Down);
    QTest::keyClicks(search, "r");
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(current(), 0);
    EXPECT_EQ(search->text(), "r");
    delete search;
}

TEST_F(SessionKeys, AStoredShiftShortcutMatchesShiftAloneAndIsReadOnEveryPress)
{
    constexpr qint64 kKeyN = 45; // N on the ANSI layout
    storeShortcut("kNextSegmentShortcut", kKeyN, ModifierFlag::Shift);
    press(Qt::Key_N);
    EXPECT_EQ(current(), 0);
    press(Qt::Key_N, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(current(), 0);
    EXPECT_EQ(table->mutableTranscriptions().value(0), "n") << "an unbound key is typed";
    press(Qt::Key_N, Qt::ShiftModifier);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(table->mutableTranscriptions().value(0), "n");

    // Two commands on one key: the earlier in the table wins (previous).
    storeShortcut("kPreviousSegmentShortcut", kKeyN, ModifierFlag::Shift);
    press(Qt::Key_N, Qt::ShiftModifier);
    EXPECT_EQ(current(), 0);
}

TEST_F(SessionKeys, F2CutsTheFileAgainAndReloadsItsStoredTranscriptKeepingNewerTyping)
{
    // The opening's own save must be on disk first, or it could land over
    // the transcript this test stores.
    h.finishAutoSaves();
    QTest::keyClicks(QApplication::focusWidget(), "unsaved");
    // A transcript stored meanwhile (as another save would have left it).
    const QString store = h.storePath();
    QStringList lines;
    for (qsizetype i = 0; i < segments; ++i)
        lines.append(
            Lrc::formatLine(h.engine().segments()[i].start, QStringLiteral("row %1").arg(i)));
    TestSupport::writeFile(store, lines.join(u'\n').toUtf8());
    bool finished = false;
    h.session().setOpeningFinishedHandler([&](bool) { finished = true; });
    press(Qt::Key_F2);
    ASSERT_TRUE(waitFor([&] { return finished; }));
    h.session().setOpeningFinishedHandler({});
    // What was typed after the last save is journaled, so the new cutting
    // keeps it over the stored row.
    EXPECT_EQ(table->mutableTranscriptions().value(0), "unsaved");
    EXPECT_EQ(table->mutableTranscriptions().value(1), "row 1");
    EXPECT_EQ(table->mutableTranscriptions().value(segments - 1),
              QStringLiteral("row %1").arg(segments - 1));
    EXPECT_EQ(current(), 0);
}

TEST(SessionRepeat,
     EachSegmentPlaysThePreferredNumberOfTimesAtTheRateSetWhileItRepeatsOrUntilMovedOn)
{
    VirtualClock clock;
    WindowHarness h;
    h.setClock(clock);
    QApplication::setActiveWindow(&h.window());
    h.engine().setRepeatTimes(3);
    h.engine().setRepeatMode(false);
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    ASSERT_TRUE(waitFor([&] {
        return QApplication::focusWidget() == h.session().transcriptionTableView()->editorForRow(0);
    }));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::ControlModifier);
    ASSERT_TRUE(h.engine().isRepeatMode());

    const Segment first = h.engine().segments()[0];
    const double nextStart = h.engine().segments()[1].start;
    // Half the rate once the repeat switch has timed the segment's end: that
    // end is timed again, so the first play is not cut short where it would
    // have ended at the old rate.
    int starts = 0;
    QObject counter;
    h.center().addObserver(Notifications::AudioPlaying, &counter,
                           [&](const NotificationCenter::Notification&) { ++starts; });
    h.engine().setPlaybackRate(0.5f);
    clock.advance(1.5 * first.duration);
    QTest::qWait(20);
    EXPECT_EQ(starts, 0) << "the first play was cut short and started again";
    h.center().removeObserver(&counter);
    int plays = 1;
    // Each pass: the end of the segment, the main thread's turn, and so on. A
    // segment's time counts from when the (real-time) null output first takes
    // its sound, which a loaded machine may delay: the loop gives it real
    // milliseconds as well as virtual seconds, up to a generous deadline.
    QElapsedTimer deadline;
    deadline.start();
    while (h.session().currentSegmentIndex() == 0 && deadline.elapsed() < 30000) {
        clock.advance(0.25);
        QTest::qWait(5);
        plays = static_cast<int>(h.engine().currentSegmentRepeatedTimes());
        if (h.session().currentSegmentIndex() == 0) {
            EXPECT_LE(plays, 3);
        }
    }
    EXPECT_EQ(h.session().currentSegmentIndex(), 1);
    EXPECT_EQ(h.engine().currentSegmentIndex(), 1);
    EXPECT_TRUE(h.engine().isPlaying());
    // Three plays of segment 0 take at least three times its length.
    EXPECT_GE(clock.now(), 3 * std::min(first.duration, nextStart - first.start) - 0.3);

    // Until the learner moves on, the count no longer ends the repeats; the
    // move starts the count again.
    PracticeOptions options;
    options.repeatUntilMovedOn = true;
    h.engine().setPracticeOptions(options);
    deadline.restart();
    while (h.engine().currentSegmentRepeatedTimes() < 5 && deadline.elapsed() < 30000) {
        clock.advance(0.25);
        QTest::qWait(5);
    }
    EXPECT_EQ(h.engine().currentSegmentRepeatedTimes(), 5);
    EXPECT_EQ(h.session().currentSegmentIndex(), 1);
    ASSERT_TRUE(waitFor([&] {
        return QApplication::focusWidget() == h.session().transcriptionTableView()->editorForRow(1);
    }));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(h.session().currentSegmentIndex(), 2);
    EXPECT_EQ(h.engine().currentSegmentIndex(), 2);
    EXPECT_EQ(h.engine().currentSegmentRepeatedTimes(), 1);
}
