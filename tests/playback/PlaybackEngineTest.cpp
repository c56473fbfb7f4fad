// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's segment playback on a virtual clock: timers, the repeat
// counter, the notifications and their order. A real player plays the file
// into a manually clocked null output, so positions stay where they were set.

#include "VirtualClock.h"
#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "audio/NullAudioOutput.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <functional>
#include <gtest/gtest.h>
#include <thread>
#include <utility>

using TestSupport::fixture;

namespace {

const char* const kPlaybackNames[] = {Notifications::AudioPlaying,
                                      Notifications::AudioPlaybackDidPause,
                                      Notifications::AudioPlaybackDidResume,
                                      Notifications::AudioPlayStop,
                                      Notifications::AutoUpdateWavePosDidUpdate,
                                      Notifications::AudioFileDidClose,
                                      Notifications::AudioPlaybackPositionDidUpdate};

class PlaybackEngine : public ::testing::Test
{
protected:
    void SetUp() override
    {
        engine = std::make_unique<AudioManager>(defaults.store(), center);
        engine->setClock(clock);
        engine->setOutputFactory([this] {
            auto out = std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual);
            output = out.get();
            return out;
        });
        for (const char* name : kPlaybackNames) {
            center.addObserver(name, &observer, [this](const NotificationCenter::Notification& n) {
                if (n.name == QLatin1String(Notifications::AudioPlaybackPositionDidUpdate)) {
                    positions.append(n.userInfo.value("position").toDouble());
                    return;
                }
                QString entry = n.name;
                if (n.userInfo.contains("status"))
                    entry += ":" + QString::number(n.userInfo.value("status").toInt());
                if (n.name == QLatin1String(Notifications::AutoUpdateWavePosDidUpdate))
                    entry += n.object.toBool() ? ":true" : ":false";
                else
                    EXPECT_EQ(n.object.value<AudioManager*>(), engine.get())
                        << n.name.toStdString();
                events.append(entry);
            });
        }
        bool loaded = false;
        engine->processAudioFile(fixture("speech.wav"), [&](bool ok) { loaded = ok; });
        ASSERT_TRUE(loaded);
        ASSERT_TRUE(engine->audioPlayer());
        // Round numbers: segment i starts at starts[i]; the file lasts 14.36 s.
        ASSERT_TRUE(
            engine->updateSegments({{0.0, 2.0}, {2.0, 2.5}, {4.8, 3.0}, {8.0, 3.0}, {11.5, 1.5}}));
        engine->setPlaybackCompletionHandler([this] {
            ++completions;
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
        });
        events.clear();
    }

    // How many notifications with this entry were recorded.
    qsizetype count(const QString& entry) const { return events.count(entry); }
    QString endFalse() const
    {
        return QString(Notifications::AutoUpdateWavePosDidUpdate) + ":false";
    }
    QString endTrue() const { return QString(Notifications::AutoUpdateWavePosDidUpdate) + ":true"; }

    // Advances to just before `seconds` from now and checks the segment end
    // has not come, then past it and checks it has.
    void expectSegmentEndAfter(double seconds, const QString& entry)
    {
        const qsizetype before = count(entry);
        clock.advance(seconds - 1e-4);
        EXPECT_EQ(count(entry), before) << "the timer fired early";
        clock.advance(2e-4);
        EXPECT_EQ(count(entry), before + 1) << "the timer did not fire at " << seconds;
    }

    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    VirtualClock clock;
    QObject observer;
    std::unique_ptr<AudioManager> engine;
    NullAudioOutput* output = nullptr;
    QStringList events;
    QList<double> positions;
    int completions = 0;
};

} // namespace

TEST_F(PlaybackEngine,
       SegmentEndTimerRunsToTheNextStartOrForTheLastSegmentsDurationDividedByTheRate)
{
    for (const float rate : {1.0f, 2.0f}) {
        SCOPED_TRACE(rate);
        engine->setPlaybackRate(rate);
        engine->playSegmentAtIndex(2); // middle: up to segment 3's start, gap included
        expectSegmentEndAfter((8.0 - 4.8) / rate, endFalse());
        engine->stopPlayback();
        engine->playSegmentAtIndex(4); // last: its own duration
        expectSegmentEndAfter(1.5 / rate, endFalse());
        engine->stopPlayback();
    }
}

// A device that has just started takes a whole buffer at once, then keeps
// pace: the segment is all handed over before the interval from the call is
// up, and the end comes then, so that a replay follows the last frame
// rather than a gap.
TEST_F(PlaybackEngine, TheSegmentEndsWhenTheDeviceHasTakenItsLastFrame)
{
    const int rate = engine->audioPlayer()->format().sampleRate;
    std::vector<float> block;
    // Takes `frames` frames of sound, or what is left before the segment's
    // end, waiting for the decode thread as a device's buffer would.
    const auto take = [&](qsizetype frames) {
        QElapsedTimer waited;
        waited.start();
        qsizetype got = 0;
        while (got < frames && waited.elapsed() < 2000) {
            got += output->pull(frames - got, block);
            if (engine->audioPlayer()->handedFrame().position >= 8.0 - 2.0 / rate)
                break;
            if (got < frames)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    };
    engine->playSegmentAtIndex(2); // 4.8 to 8.0
    take(rate / 5);
    double elapsed = 0;
    while (count(endFalse()) == 0 && elapsed < 4.0) {
        take(rate / 100);
        clock.advance(0.01);
        elapsed += 0.01;
    }
    EXPECT_NEAR(elapsed, 3.0, 0.015) << "3.2 s of segment, 0.2 s of it taken at once";
}

TEST_F(PlaybackEngine, RepeatModeHandsBackOnTheMainThreadLaterAndKeepsPlaying)
{
    engine->playSegmentAtIndex(1);
    EXPECT_TRUE(engine->isPlaying());
    clock.advance(2.8);
    EXPECT_EQ(count(endFalse()), 1);
    EXPECT_EQ(completions, 0) << "the handler must not run inside the timer";
    EXPECT_TRUE(engine->isPlaying()) << "the end timer does not stop the player";
    TestSupport::processEvents();
    EXPECT_EQ(completions, 1);

    // Outside repeat mode the audio plays on and nothing is handed back.
    engine->setRepeatMode(false);
    engine->stopPlayback();
    engine->playSegmentAtIndex(2);
    clock.advance(3.3);
    TestSupport::processEvents();
    EXPECT_EQ(count(endTrue()), 1);
    EXPECT_EQ(completions, 1);
    EXPECT_TRUE(engine->isPlaying());
}

TEST_F(PlaybackEngine, RepeatCounterCountsStartsOfTheSameSegmentInRepeatModeOnly)
{
    engine->playSegmentAtIndex(1);
    EXPECT_EQ(engine->currentSegmentRepeatedTimes(), 1);
    for (int expected = 2; expected <= 4; ++expected) {
        engine->stopPlayback(); // as the session's handler does before a replay
        engine->playSegmentAtIndex(1);
        EXPECT_EQ(engine->currentSegmentRepeatedTimes(), expected);
    }
    engine->playSegmentAtIndex(3);
    EXPECT_EQ(engine->currentSegmentIndex(), 3);
    EXPECT_EQ(engine->currentSegmentRepeatedTimes(), 1);

    engine->setRepeatMode(false);
    engine->pausePlayback();
    engine->playSegmentAtIndex(3);
    EXPECT_EQ(engine->currentSegmentRepeatedTimes(), 1)
        << "replays are not counted outside repeat mode";
    engine->playSegmentAtIndex(0);
    EXPECT_EQ(engine->currentSegmentRepeatedTimes(), 1);
    EXPECT_EQ(engine->currentSegmentIndex(), 0);
}

TEST_F(PlaybackEngine, ASecondRequestForThePlayingSegmentIsLoggedAndIgnored)
{
    engine->playSegmentAtIndex(2);
    engine->audioPlayer()->setCurrentTime(6.0);
    events.clear();
    TestSupport::LogCapture log;
    engine->playSegmentAtIndex(2);
    EXPECT_TRUE(log.contains("playSegmentAtIndex: self.currentSegmentIndex==index,index=2,return"));
    EXPECT_TRUE(events.isEmpty());
    EXPECT_DOUBLE_EQ(engine->audioPlayer()->currentTime(), 6.0) << "it must not seek";
    EXPECT_EQ(engine->currentSegmentRepeatedTimes(), 1);
}

TEST_F(PlaybackEngine, ANegativeStartPlaysFromZeroAndNegativeIndexesDoNothing)
{
    ASSERT_TRUE(engine->updateSegments({{-0.5, 2.5}, {2.0, 2.5}}));
    engine->audioPlayer()->setCurrentTime(5.0);
    engine->playSegmentAtIndex(-1);
    EXPECT_FALSE(engine->isPlaying());
    EXPECT_TRUE(events.isEmpty());
    engine->playSegmentAtIndex(0);
    EXPECT_DOUBLE_EQ(engine->audioPlayer()->currentTime(), 0.0);
    expectSegmentEndAfter(2.0, endFalse());
}

TEST_F(PlaybackEngine, ResumeTimerRunsToTheNextStartFromThePositionOrToTheSavedPositionOnTheLast)
{
    engine->setRepeatMode(false); // the resume timer hands back in either mode
    engine->setPlaybackRate(2.0f);
    engine->playSegmentAtIndex(2);
    engine->pausePlayback();
    engine->audioPlayer()->setCurrentTime(6.0);
    engine->resumePlayback();
    EXPECT_TRUE(engine->isPlaying());
    EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), 2.0f);
    clock.advance((8.0 - 6.0) / 2.0 - 1e-4);
    EXPECT_TRUE(engine->isPlaying());
    clock.advance(2e-4);
    EXPECT_FALSE(engine->isPlaying()) << "the resume timer stops playback";
    EXPECT_EQ(completions, 0);
    TestSupport::processEvents();
    EXPECT_EQ(completions, 1);

    engine->playSegmentAtIndex(4);
    engine->pausePlayback();
    engine->setSavedPlaybackPosition(12.0);
    engine->resumePlayback();
    clock.advance((11.5 + 1.5 - 12.0) / 2.0 - 1e-4);
    EXPECT_TRUE(engine->isPlaying());
    clock.advance(2e-4);
    EXPECT_FALSE(engine->isPlaying());
    TestSupport::processEvents();
    EXPECT_EQ(completions, 2);
}

// The silence after a repetition: the completion comes the gap later, after
// the segment's end or a resumed stretch's, unless something ends the gap.
TEST_F(PlaybackEngine, TheGapAfterARepetitionDelaysTheCompletionUntilNavigationOrPauseEndsIt)
{
    PracticeOptions options;
    options.repeatGap = 1.5;
    engine->setPracticeOptions(options);
    // `passed`: how much of the gap the clock has already run.
    const auto expectCompletionAfterGap = [&](double passed) {
        const int before = completions;
        EXPECT_TRUE(engine->isInRepeatGap());
        clock.advance(1.5 - passed - 5e-5);
        TestSupport::processEvents();
        EXPECT_EQ(completions, before) << "the gap ended early";
        EXPECT_TRUE(engine->isInRepeatGap());
        clock.advance(1e-4);
        EXPECT_FALSE(engine->isInRepeatGap());
        TestSupport::processEvents();
        EXPECT_EQ(completions, before + 1);
    };
    engine->playSegmentAtIndex(1);
    expectSegmentEndAfter(2.8, endFalse());
    EXPECT_TRUE(engine->isPlaying()) << "the gap is part of the playing loop";
    expectCompletionAfterGap(1e-4);

    // A pause stretch resumed in repeat mode ends a repetition too.
    engine->stopPlayback();
    engine->playSegmentAtIndex(3);
    engine->pausePlayback();
    engine->audioPlayer()->setCurrentTime(10.0);
    engine->resumePlayback();
    clock.advance(1.5 + 1e-5);
    EXPECT_FALSE(engine->isPlaying());
    expectCompletionAfterGap(1e-5);

    const std::pair<const char*, std::function<void()>> enders[] = {
        {"another segment", [&] { engine->playSegmentAtIndex(2); }},
        {"stop", [&] { engine->stop(); }},
        {"stopPlayback", [&] { engine->stopPlayback(); }},
        {"pause", [&] { engine->pause(); }},
        {"pausePlayback", [&] { engine->pausePlayback(); }},
    };
    for (const auto& [what, end] : enders) {
        SCOPED_TRACE(what);
        engine->stopPlayback();
        engine->playSegmentAtIndex(1);
        clock.advance(2.8 + 1e-3);
        ASSERT_TRUE(engine->isInRepeatGap());
        const int before = completions;
        end();
        EXPECT_FALSE(engine->isInRepeatGap());
        clock.advance(2.0); // past the gap, short of segment 2's end
        TestSupport::processEvents();
        EXPECT_EQ(completions, before);
    }
    // Play after a pause that ended the gap goes on with the loop at once.
    engine->resumePlayback();
    TestSupport::processEvents();
    EXPECT_EQ(completions, 3);
    EXPECT_EQ(events.last(), QString(Notifications::AudioPlaybackDidResume) + ":3");
    // So does Play during the gap after a resumed stretch, with nothing playing.
    engine->stopPlayback();
    engine->playSegmentAtIndex(3);
    engine->pausePlayback();
    engine->resumePlayback();
    clock.advance(3.5 + 1e-4);
    ASSERT_TRUE(engine->isInRepeatGap());
    engine->resumePlayback();
    EXPECT_FALSE(engine->isInRepeatGap());
    TestSupport::processEvents();
    EXPECT_EQ(completions, 4);

    // Outside repeat mode there is no gap: the audio plays on.
    engine->setRepeatMode(false);
    engine->playSegmentAtIndex(4);
    expectSegmentEndAfter(1.5, endTrue());
    EXPECT_FALSE(engine->isInRepeatGap());
}

// The first repetition of a segment at three quarters of the preferred rate
// (never below the slowest), the rest at the rate; and Play after a pause
// stepping back within the segment.
TEST_F(PlaybackEngine, TheFirstRepetitionPlaysSlowerAndResumeStepsBackWithinTheSegment)
{
    PracticeOptions options;
    options.slowerFirst = true;
    engine->setPracticeOptions(options);
    const double span = 8.0 - 4.8; // segment 2
    for (const auto& [rate, slow] : {std::pair{1.0f, 0.75f}, {2.0f, 1.5f}, {0.35f, 0.3f}}) {
        SCOPED_TRACE(rate);
        engine->setPlaybackRate(rate);
        engine->playSegmentAtIndex(0);
        engine->stopPlayback();
        engine->playSegmentAtIndex(2);
        EXPECT_EQ(engine->currentSegmentRepeatedTimes(), 1) << "the count restarts per segment";
        EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), slow);
        EXPECT_FLOAT_EQ(engine->currentRate(), rate) << "the preferred rate is shown";
        expectSegmentEndAfter(span / slow, endFalse());
        engine->stopPlayback();
        engine->playSegmentAtIndex(2);
        EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), rate);
        expectSegmentEndAfter(span / rate, endFalse());
        engine->stopPlayback();
    }
    // A new rate during the slow repetition is slowed for the rest of it.
    engine->setPlaybackRate(1.0f);
    engine->playSegmentAtIndex(3);
    clock.advance(1.0);
    engine->setPlaybackRate(2.0f);
    EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), 1.5f);
    expectSegmentEndAfter((11.5 - 8.0) / 1.5, endFalse());

    // Resuming steps back, never before the segment's start, and the end is
    // timed from there at the rate playing (the slow one, still).
    options.rewindOnResume = 2.0;
    engine->setPracticeOptions(options);
    engine->setPlaybackRate(1.0f);
    for (const auto& [paused, from] : {std::pair{7.0, 5.0}, {5.5, 4.8}}) {
        SCOPED_TRACE(paused);
        engine->stopPlayback();
        engine->playSegmentAtIndex(0);
        engine->stopPlayback();
        engine->playSegmentAtIndex(2);
        engine->pausePlayback();
        engine->audioPlayer()->setCurrentTime(paused);
        engine->resumePlayback();
        EXPECT_DOUBLE_EQ(engine->audioPlayer()->currentTime(), from);
        EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), 0.75f);
        TestSupport::processEvents(); // the repetitions' completions so far
        const int before = completions;
        clock.advance((8.0 - from) / 0.75 - 1e-4);
        EXPECT_TRUE(engine->isPlaying());
        clock.advance(2e-4);
        EXPECT_FALSE(engine->isPlaying());
        TestSupport::processEvents();
        EXPECT_EQ(completions, before + 1);
    }

    // Outside repeat mode nothing is slowed; resuming still steps back.
    engine->setRepeatMode(false);
    engine->playSegmentAtIndex(1);
    EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), 1.0f);
    engine->pausePlayback();
    engine->audioPlayer()->setCurrentTime(3.0);
    engine->resumePlayback();
    EXPECT_DOUBLE_EQ(engine->audioPlayer()->currentTime(), 2.0);
}

TEST_F(PlaybackEngine, NotificationsCarryTheirStatusCodesInOrder)
{
    engine->play();
    engine->pause();
    engine->pausePlayback();
    engine->resumePlayback();
    engine->stopPlayback(); // posts nothing
    engine->stop();
    engine->closeAudioFile();
    using namespace Notifications;
    EXPECT_EQ(events,
              (QStringList{QString(AudioPlaying) + ":1", QString(AudioPlaybackDidPause) + ":2",
                           QString(AudioPlaybackDidPause) + ":0",
                           QString(AudioPlaybackDidResume) + ":3", QString(AudioPlayStop) + ":0",
                           QString(AudioPlayStop) + ":0", QString(AudioFileDidClose)}));
    EXPECT_EQ(engine->audioPlayer(), nullptr);
    EXPECT_EQ(engine->numberOfSegments(), 0);
    EXPECT_TRUE(engine->waveformData().isEmpty());
    EXPECT_FALSE(engine->isPlaying());
    // Without a player the play operations act on nothing but still post.
    engine->playSegmentAtIndex(0);
    engine->play();
    EXPECT_EQ(events.last(), QString(AudioPlaying) + ":1");
}

TEST_F(PlaybackEngine, PauseAndStopCancelTheSegmentEnd)
{
    engine->playSegmentAtIndex(1);
    engine->pause();
    clock.advance(10.0);
    engine->playSegmentAtIndex(2);
    engine->stop();
    clock.advance(10.0);
    EXPECT_EQ(count(endFalse()), 0);
    EXPECT_FALSE(engine->isPlaying());
}

TEST_F(PlaybackEngine, EveryPlayAddsAPositionTickerThatOutlivesTheSegment)
{
    engine->audioPlayer()->setCurrentTime(1.25);
    engine->play();
    clock.advance(1.0 / 12.0);
    EXPECT_EQ(positions, (QList<double>{1.25}));
    // In repeat mode playSegmentAtIndex first cancels what is in the slot (here
    // that ticker), then play() adds a ticker, which the segment-end timer
    // then displaces from the slot without cancelling it.
    engine->playSegmentAtIndex(1);
    positions.clear();
    clock.advance(1.0 / 12.0);
    EXPECT_EQ(positions, (QList<double>{2.0}));
    engine->playSegmentAtIndex(2);
    positions.clear();
    clock.advance(1.0 / 12.0);
    EXPECT_EQ(positions, (QList<double>{4.8, 4.8})) << "the earlier ticker lives on";
    engine->playSegmentAtIndex(3);
    engine->pause(); // cancels only the end timer in the slot
    positions.clear();
    clock.advance(1.0 / 12.0);
    EXPECT_EQ(positions.size(), 3);
}

TEST_F(PlaybackEngine, TheTickerMarksTheEndOfTheFileAndSegmentZeroClearsIt)
{
    engine->audioPlayer()->setCurrentTime(engine->duration() - 0.05);
    engine->play();
    EXPECT_FALSE(engine->isPlaybackFinished());
    clock.advance(1.0 / 12.0);
    EXPECT_TRUE(engine->isPlaybackFinished());
    engine->playSegmentAtIndex(1);
    EXPECT_TRUE(engine->isPlaybackFinished());
    engine->playSegmentAtIndex(0);
    EXPECT_FALSE(engine->isPlaybackFinished());
}

TEST_F(PlaybackEngine, RateIsClampedAndNeedsAPlayer)
{
    engine->setPlaybackRate(5.0f);
    EXPECT_FLOAT_EQ(engine->currentRate(), 3.0f);
    EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), 3.0f);
    EXPECT_TRUE(engine->audioPlayer()->enableRate());
    engine->setPlaybackRate(0.1f);
    EXPECT_FLOAT_EQ(engine->currentRate(), 0.3f);
    EXPECT_FLOAT_EQ(engine->audioPlayer()->rate(), 0.3f);
    engine->closeAudioFile();
    engine->setPlaybackRate(2.0f);
    EXPECT_FLOAT_EQ(engine->currentRate(), 0.3f) << "without a player nothing changes";
}

TEST_F(PlaybackEngine, RepeatTimesAreSavedOnlyWhenAsked)
{
    engine->setRepeatTimes(7);
    EXPECT_FLOAT_EQ(engine->maxRepeatPlayTimes(), 7.0f);
    EXPECT_FALSE(defaults.store().hasUserValue(PreferenceKeys::MaxRepeatPlayTimes));
    engine->saveMaxRepeatTimesSetting(12);
    EXPECT_FLOAT_EQ(engine->maxRepeatPlayTimes(), 12.0f);
    defaults.reopen();
    EXPECT_EQ(defaults.store().integerForKey(PreferenceKeys::MaxRepeatPlayTimes), 12);
}

TEST_F(PlaybackEngine, TimersHoldTheEngineWeakly)
{
    engine->playSegmentAtIndex(1);
    engine->resumePlayback();
    engine.reset();
    clock.advance(30.0); // nothing fires into a destroyed engine
    TestSupport::processEvents();
    EXPECT_EQ(completions, 0);
    EXPECT_TRUE(positions.isEmpty());
}

TEST_F(PlaybackEngine, ThePlayersEndReachesTheEngine)
{
    TestSupport::LogCapture log;
    engine->audioPlayer()->setCurrentTime(engine->duration() - 0.2);
    engine->play();
    std::vector<float> block;
    QElapsedTimer waited;
    waited.start();
    while (!engine->isPlaybackFinished() && waited.elapsed() < 5000) {
        output->pull(1024, block);
        TestSupport::processEvents();
    }
    EXPECT_TRUE(log.contains("Audio playback finished"));
    EXPECT_TRUE(engine->isPlaybackFinished());
}

TEST_F(PlaybackEngine, FadeInRampsTheVolumeOnlyWhilePlaying)
{
    AudioPlayer* player = engine->audioPlayer();
    player->setVolume(0.5f);
    engine->performFadeIn(); // not playing: left alone
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < 200)
        TestSupport::processEvents();
    EXPECT_FLOAT_EQ(player->volume(), 0.5f);

    engine->play();
    engine->performFadeIn();
    float lowest = 1.0f;
    waited.restart();
    while (waited.elapsed() < 1000 && !(player->volume() == 1.0f && lowest < 0.5f)) {
        TestSupport::processEvents();
        lowest = std::min(lowest, player->volume());
    }
    EXPECT_LT(lowest, 0.2f);
    EXPECT_FLOAT_EQ(player->volume(), 1.0f);
}

TEST_F(PlaybackEngine, ALoadOnAWorkerThreadCreatesThePlayerOnTheEnginesThread)
{
    std::atomic<int> result{-1};
    std::atomic<bool> returned{false};
    QThread* completedOn = nullptr;
    // The main thread waits for the worker without running its event loop,
    // as a window closing during a load would: the load must not need it.
    std::thread worker([&] {
        engine->processAudioFile(fixture("speech.flac"), [&](bool ok) {
            EXPECT_TRUE(returned.load());
            completedOn = QThread::currentThread();
            result = ok ? 1 : 0;
        });
        returned = true;
    });
    worker.join();
    EXPECT_EQ(result.load(), -1);
    QElapsedTimer waited;
    waited.start();
    while (result == -1 && waited.elapsed() < 20000)
        TestSupport::processEvents();
    EXPECT_EQ(result.load(), 1);
    EXPECT_EQ(completedOn, engine->thread());
    ASSERT_TRUE(engine->audioPlayer());
    EXPECT_EQ(engine->audioPlayer()->thread(), engine->thread());
    EXPECT_TRUE(engine->audioPlayer()->path().endsWith("speech.flac"));
}
