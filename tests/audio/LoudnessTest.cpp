// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/Loudness.h"

#include "audio/WaveformPeaks.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

TEST(Loudness, FramesDoNotDependOnHowTheDecoderSlicesTheAudio)
{
    std::vector<float> signal(2000);
    for (std::size_t i = 0; i < signal.size(); ++i)
        signal[i] = std::sin(float(i) * 0.05f) * (float(i % 700) / 700.0f);

    Loudness::FrameAccumulator whole(882);
    whole.add(signal.data(), signal.size());
    whole.finish();

    Loudness::FrameAccumulator sliced(882);
    for (std::size_t at = 0; at < signal.size(); at += 7)
        sliced.add(signal.data() + at, std::min<std::size_t>(7, signal.size() - at));
    sliced.finish();

    ASSERT_EQ(whole.rmsValues().size(), 3); // 882 + 882 + a last frame of 236
    EXPECT_EQ(sliced.rmsValues(), whole.rmsValues());
    EXPECT_EQ(whole.rmsValues()[0], Loudness::rms(signal.data(), 882));
    EXPECT_EQ(whole.rmsValues()[2], Loudness::rms(signal.data() + 1764, 236));
}

TEST(Loudness, StatisticsAreThePopulationFigures)
{
    const Loudness::Statistics s = Loudness::statistics({1.0f, 2.0f, 3.0f, 4.0f});
    EXPECT_FLOAT_EQ(s.average, 2.5f);
    EXPECT_FLOAT_EQ(s.stdDev, std::sqrt(1.25f)); // divided by the count, not count - 1
    EXPECT_EQ(s.min, 1.0f);
    EXPECT_EQ(s.max, 4.0f);

    const Loudness::Statistics silent = Loudness::statistics(QList<float>(50, 0.0f));
    EXPECT_EQ(silent.average, 0.0f);
    EXPECT_EQ(silent.stdDev, 0.0f);
    EXPECT_EQ(silent.min, 0.0f);
    EXPECT_EQ(silent.max, 0.0f);
}

TEST(WaveformPeaks, BlocksOfAHundredValuesRestartingAtEveryBuffer)
{
    std::vector<int16_t> mono(250, 0);
    mono[10] = 16384;
    mono[150] = -8192;
    mono[249] = 4096;
    WaveformPeaks peaks;
    peaks.addBuffer(mono.data(), 250, 1);
    ASSERT_EQ(peaks.peaks(), (QList<float>{0.5f, 0.25f, 0.125f}));
    EXPECT_EQ(peaks.totalFrames(), 250);

    // A second buffer starts new blocks even though the first ended short.
    peaks.addBuffer(mono.data(), 30, 1);
    EXPECT_EQ(peaks.peaks().size(), 4);
    EXPECT_EQ(peaks.totalFrames(), 280);
}

TEST(WaveformPeaks, TwoOrMoreChannelsWalkOnlyTheFirstHalfOfTheValues)
{
    // 100 stereo frames = 200 values; only values 0..99 are looked at.
    std::vector<int16_t> stereo(200, 0);
    stereo[99] = 1000;
    stereo[150] = 32000;
    WaveformPeaks two;
    two.addBuffer(stereo.data(), 200, 2);
    ASSERT_EQ(two.peaks().size(), 1);
    EXPECT_FLOAT_EQ(two.peaks()[0], 1000.0f / 32768.0f);
    EXPECT_EQ(two.totalFrames(), 100);

    // Six channels count as if there were two: 600 values give 300 "frames".
    std::vector<int16_t> six(600, 1);
    WaveformPeaks many;
    many.addBuffer(six.data(), 600, 6);
    EXPECT_EQ(many.peaks().size(), 3);
    EXPECT_EQ(many.totalFrames(), 300);
}

TEST(WaveformPeaks, NormalisedToTheLoudestBlockUnlessAllAreSilent)
{
    std::vector<int16_t> values(300, 0);
    values[0] = -32768; // the most negative value is exactly full scale
    values[100] = 8192;
    WaveformPeaks peaks;
    peaks.addBuffer(values.data(), 300, 1);
    EXPECT_EQ(peaks.peaks()[0], 1.0f);
    EXPECT_EQ(peaks.normalized(), (QList<float>{1.0f, 0.25f, 0.0f}));

    std::vector<int16_t> quieter(200, 0);
    quieter[5] = 100;
    quieter[105] = -50;
    WaveformPeaks q;
    q.addBuffer(quieter.data(), 200, 1);
    const QList<float> n = q.normalized();
    EXPECT_EQ(*std::max_element(n.begin(), n.end()), 1.0f);
    EXPECT_GE(*std::min_element(n.begin(), n.end()), 0.0f);

    std::vector<int16_t> silence(250, 0);
    WaveformPeaks s;
    s.addBuffer(silence.data(), 250, 1);
    EXPECT_EQ(s.normalized(), (QList<float>{0.0f, 0.0f, 0.0f}));
}
