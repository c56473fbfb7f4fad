// SPDX-License-Identifier: GPL-3.0-or-later
// Segmentation on hand-made loudness lists, where the expected silences and
// cuts can be worked out frame by frame (one frame = 20 ms).

#include "audio/Segmentation.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>

using namespace Segmentation;

namespace {

constexpr float kLoud = 0.5f;
constexpr float kQuiet = 0.001f;
constexpr float kThreshold = 0.1f;

// Builds a loudness list from runs of {value, frame count}.
QList<float> runs(std::initializer_list<std::pair<float, int>> parts)
{
    QList<float> out;
    for (const auto& [value, count] : parts)
        out.append(QList<float>(count, value));
    return out;
}

constexpr int kMedium = 1; // two quiet frames open a silence
constexpr int kLow = 0;    // three
constexpr int kHigh = 2;   // one

} // namespace

TEST(AdaptiveThreshold, MeanMinusSpreadByLevelKeptBetweenOneAndFiftyPercentOfTheLoudest)
{
    EXPECT_FLOAT_EQ(adaptiveThreshold(0.4f, 0.2f, 1.0f, kLow), 0.4f - 0.2f * 0.7f);
    EXPECT_FLOAT_EQ(adaptiveThreshold(0.4f, 0.2f, 1.0f, kHigh), 0.4f - 0.2f * 0.3f);
    // Any level outside 0..2 behaves as medium.
    EXPECT_FLOAT_EQ(adaptiveThreshold(0.4f, 0.2f, 1.0f, 7), 0.3f);
    EXPECT_FLOAT_EQ(adaptiveThreshold(0.01f, 0.1f, 0.8f, kMedium), 0.008f); // floor
    EXPECT_FLOAT_EQ(adaptiveThreshold(0.9f, 0.0f, 1.0f, kMedium), 0.5f);    // ceiling
    // A silent file: nothing can be quieter than 0, so no frame is ever silent.
    EXPECT_EQ(adaptiveThreshold(0.0f, 0.0f, 0.0f, kMedium), 0.0f);
    EXPECT_TRUE(detectSilences(QList<float>(100, 0.0f), 0.0f, kMedium).isEmpty());
}

TEST(SilenceDetection, InteriorSilenceNeedsHalfASecond)
{
    // 25 quiet frames are exactly 0.5 s and count; 24 (0.48 s) do not.
    const auto counted =
        detectSilences(runs({{kLoud, 50}, {kQuiet, 25}, {kLoud, 50}}), kThreshold, kMedium);
    ASSERT_EQ(counted.size(), 1);
    EXPECT_FLOAT_EQ(counted[0].start, 1.0f);
    EXPECT_FLOAT_EQ(counted[0].duration, 0.5f);
    EXPECT_FLOAT_EQ(counted[0].midPoint, (12 + 50) * 0.02f); // half the run, rounded down

    EXPECT_TRUE(detectSilences(runs({{kLoud, 50}, {kQuiet, 24}, {kLoud, 50}}), kThreshold, kMedium)
                    .isEmpty());
}

TEST(SilenceDetection, TrailingSilenceNeedsOnlyATenthOfASecond)
{
    const auto five = detectSilences(runs({{kLoud, 50}, {kQuiet, 5}}), kThreshold, kMedium);
    ASSERT_EQ(five.size(), 1);
    EXPECT_FLOAT_EQ(five[0].start, 1.0f);
    EXPECT_FLOAT_EQ(five[0].midPoint, (2 + 50) * 0.02f);
    EXPECT_FLOAT_EQ(five[0].duration, 0.1f);

    EXPECT_TRUE(detectSilences(runs({{kLoud, 50}, {kQuiet, 4}}), kThreshold, kMedium).isEmpty());
}

TEST(SilenceDetection, RunMustReachTheSensitivityCountToOpen)
{
    // At low sensitivity six trailing quiet frames (0.12 s) open and keep a
    // silence; two never open one.
    const QList<float> tail = runs({{kLoud, 10}, {kQuiet, 6}});
    EXPECT_EQ(detectSilences(tail, kThreshold, kLow).size(), 1);
    EXPECT_EQ(detectSilences(runs({{kLoud, 10}, {kQuiet, 2}}), kThreshold, kLow).size(), 0);

    // A silence is dated from the first quiet frame whatever the count needed.
    for (int level : {kLow, kMedium, kHigh}) {
        const auto s =
            detectSilences(runs({{kLoud, 10}, {kQuiet, 30}, {kLoud, 10}}), kThreshold, level);
        ASSERT_EQ(s.size(), 1) << "sensitivity " << level;
        EXPECT_FLOAT_EQ(s[0].start, 0.2f);
        EXPECT_FLOAT_EQ(s[0].duration, 0.6f);
    }
}

TEST(SilenceDetection, ALoudFrameResetsTheRun)
{
    // Quiet runs of 1 broken by loud frames never open a silence at medium,
    // and a value equal to the threshold is loud.
    QList<float> alternating;
    for (int i = 0; i < 200; ++i)
        alternating.append(i % 2 ? kLoud : kQuiet);
    EXPECT_TRUE(detectSilences(alternating, kThreshold, kMedium).isEmpty());
    EXPECT_TRUE(detectSilences(QList<float>(100, kThreshold), kThreshold, kMedium).isEmpty());

    // At high sensitivity a single quiet frame opens one, though too short to keep.
    EXPECT_TRUE(
        detectSilences(runs({{kLoud, 5}, {kQuiet, 1}, {kLoud, 5}}), kThreshold, kHigh).isEmpty());
    EXPECT_EQ(detectSilences(runs({{kLoud, 5}, {kQuiet, 5}}), kThreshold, kHigh).size(), 1);
}

TEST(Cutting, CutsAtMidpointsAndLeavesTheTailToTheFixups)
{
    const QList<Silence> silences{{1.0f, 0.6f, 1.3f}, {4.0f, 0.6f, 4.3f}, {8.0f, 0.6f, 8.3f}};
    const SegmentList segments = cutAtMidpoints(silences, 500, 1.0, 10.0);
    ASSERT_EQ(segments.size(), 3);
    EXPECT_FLOAT_EQ(float(segments[0].start), 0.0f);
    EXPECT_FLOAT_EQ(float(segments[0].duration), 1.3f);
    EXPECT_FLOAT_EQ(float(segments[1].start), 1.3f);
    EXPECT_FLOAT_EQ(float(segments[1].duration), 3.0f);
    EXPECT_FLOAT_EQ(float(segments[2].start), 4.3f);
    EXPECT_FLOAT_EQ(float(segments[2].duration), 4.0f);
}

TEST(Cutting, SkippedMidpointsMakeLongerSegments)
{
    // With 2 s minimum the cut at 1.0 is too early, 2.5 is taken, 4.0 is too
    // close to it, and 5.0 ends a 2.5 s segment.
    const QList<Silence> silences{
        {0.8f, 0.5f, 1.0f}, {2.2f, 0.6f, 2.5f}, {3.8f, 0.5f, 4.0f}, {4.8f, 0.5f, 5.0f}};
    const SegmentList segments = cutAtMidpoints(silences, 400, 2.0, 8.0);
    ASSERT_EQ(segments.size(), 2);
    EXPECT_FLOAT_EQ(float(segments[0].duration), 2.5f);
    EXPECT_FLOAT_EQ(float(segments[1].start), 2.5f);
    EXPECT_FLOAT_EQ(float(segments[1].duration), 2.5f);
}

TEST(Cutting, WithoutACutBeforeTheEndTheWholeListIsOneSegment)
{
    const QList<Silence> atEnd{{2.8f, 0.4f, 3.0f}};
    EXPECT_TRUE(cutAtMidpoints(atEnd, 150, 1.0, 3.0).isEmpty());
    EXPECT_EQ(cutAtMidpoints(atEnd, 150, 1.0, 3.0001).size(), 1);

    const SegmentList segments = cutAtMidpoints({}, 250, 1.0, 5.0);
    ASSERT_EQ(segments.size(), 1);
    EXPECT_EQ(segments[0].start, 0.0);
    EXPECT_FLOAT_EQ(float(segments[0].duration), 5.0f);
    EXPECT_EQ(cutAtMidpoints({}, 0, 1.0, 5.0).first().duration, 0.0);
}

TEST(LoadFixups, FirstReachesBackToZeroAndLastStopsASecondBeforeTheEnd)
{
    SegmentList segments{{0.5, 1.0}, {1.5, 2.0}, {3.5, 1.0}};
    applyLoadFixups(segments, 10.0);
    EXPECT_EQ(segments[0], (Segment{0.0, 1.5}));
    EXPECT_EQ(segments[1], (Segment{1.5, 2.0}));
    EXPECT_EQ(segments[2], (Segment{3.5, 5.5}));

    SegmentList single{{0.2, 1.0}};
    applyLoadFixups(single, 4.0);
    EXPECT_EQ(single[0], (Segment{0.0, 3.0}));

    // A last cut within a second of the end leaves a zero or negative length.
    SegmentList shortTail{{0.0, 2.0}, {2.0, 0.5}};
    applyLoadFixups(shortTail, 2.5);
    EXPECT_EQ(shortTail[1].duration, -0.5);

    SegmentList none;
    applyLoadFixups(none, 4.0);
    EXPECT_TRUE(none.isEmpty());
}

TEST(Segmentation, WholePipelineOnAHandMadeRecording)
{
    // Speech, 0.6 s pause, speech, 0.4 s pause (ignored), speech, quiet tail.
    const QList<float> rms =
        runs({{kLoud, 100}, {kQuiet, 30}, {kLoud, 80}, {kQuiet, 20}, {kLoud, 90}, {kQuiet, 10}});
    const double duration = rms.size() * 0.02;
    const QList<Silence> silences = detectSilences(rms, kThreshold, kMedium);
    ASSERT_EQ(silences.size(), 2);
    SegmentList segments = cutAtMidpoints(silences, rms.size(), 1.0, duration);
    applyLoadFixups(segments, duration);
    ASSERT_EQ(segments.size(), 2);
    EXPECT_EQ(segments[0].start, 0.0);
    EXPECT_NEAR(segments[0].duration, 2.3, 1e-5);
    EXPECT_NEAR(segments[1].start, 2.3, 1e-5);
    EXPECT_NEAR(segments[1].end(), duration - 1.0, 1e-9);
}
