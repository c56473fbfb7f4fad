// SPDX-License-Identifier: GPL-3.0-or-later
// Real sound from files whose channels are unusual: the player, on Qt's
// sound device, plays into the private null sink and the sink's monitor is
// recorded (as mono: the mean of the two sides).

#include "PlayerTestSupport.h"
#include "RealSoundSupport.h"
#include "audio/AudioOutput.h"
#include "audio/AudioPlayer.h"
#include "support/TestSupport.h"

#include <QElapsedTimer>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using TestSupport::fixture;
using namespace RealSoundSupport;

namespace {

class RealSoundFiles : public WithServer<>
{
protected:
    std::unique_ptr<AudioPlayer> open(const QString& path)
    {
        QString error;
        auto player = AudioPlayer::create(path, nullptr, &error);
        EXPECT_TRUE(player) << error.toStdString();
        if (!player)
            return nullptr;
        player->prepareToPlay();
        EXPECT_FALSE(player->output()->isSilent()) << "the player did not find the sink";
        return player;
    }
};

// What the mono recording of a stereo decode is: the mean of the two sides.
std::vector<float> monoMix(const std::vector<float>& stereo)
{
    std::vector<float> mono(stereo.size() / 2);
    for (size_t i = 0; i < mono.size(); ++i)
        mono[i] = 0.5f * (stereo[2 * i] + stereo[2 * i + 1]);
    return mono;
}

// Where sound first and last stands well above the 16-bit recording's
// rounding (8 steps), in seconds: lossy codecs fade in and out below a step.
struct Loud
{
    double first = 0, last = 0;
};
// The first and last samples within 40 dB of the loudest: a level well above
// the faint ringing a decoder or the stretcher may put just before an onset,
// so the span measures where the speech starts and ends, not the ringing.
Loud loudSpan(const std::vector<float>& samples, float peak)
{
    const float threshold = peak * 0.01f;
    const auto loud = [&](size_t i) { return std::fabs(samples[i]) >= threshold; };
    size_t first = 0, last = samples.empty() ? 0 : samples.size() - 1;
    while (first < last && !loud(first))
        ++first;
    while (last > first && !loud(last))
        --last;
    return {double(first) / kCaptureRate, double(last) / kCaptureRate};
}

float peakOf(const std::vector<float>& samples)
{
    float peak = 0;
    for (float s : samples)
        peak = std::max(peak, std::fabs(s));
    return peak;
}

class JoinedFile : public RealSoundFiles, public ::testing::WithParamInterface<const char*>
{
};

} // namespace

// A 5.1 lesson whose speech is in the centre channel alone: the downmix,
// scaled so that it cannot clip, folds the centre into each side at
// 1 - sqrt(1/2), and it is heard at that level.
TEST_F(RealSoundFiles, TheCentreOfA51FileIsHeardAtTheDownmixLevel)
{
    const std::vector<float> speech = PlayerTest::straightDecode(fixture("speech_48k_floor.wav"));
    auto player = open(fixture("centre_51_48k.wav"));
    ASSERT_TRUE(player);
    const double seconds = 4.0;
    const std::vector<float> reference(speech.begin(),
                                       speech.begin() + qsizetype(seconds * kCaptureRate));
    // A take is repeated only when the machine broke its sound (a ring or
    // the sink's stream ran dry); an undisturbed take is the engine's answer.
    Take take;
    double decibels = 0;
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        QElapsedTimer playing;
        take = record(
            *pulse, *player, seconds,
            [&] {
                player->setCurrentTime(0.0, seconds);
                player->play();
                playing.start();
            },
            [&] { return playing.elapsed() > qint64(seconds * 1000) + 100; });
        player->stop();
        if (!take.error.isEmpty())
            break;
        take.measure(reference, seconds);
        // The gain that best maps the speech onto what was heard.
        double dot = 0, energy = 0;
        for (size_t i = 0; i < reference.size(); ++i) {
            dot += double(take.capture[size_t(std::llround(take.lagSeconds * kCaptureRate)) + i]) *
                   reference[i];
            energy += double(reference[i]) * reference[i];
        }
        decibels = 20.0 * std::log10(dot / energy);
        std::printf(
            "take %d: found at %.3f s (r=%.4f), level %.2f dB, %d underruns, %d at the sink\n",
            attempt, take.lagSeconds, take.coefficient, decibels, take.starved, take.sinkUnderruns);
        if (!take.disturbed())
            break;
    }
    ASSERT_TRUE(take.error.isEmpty()) << take.error.toStdString();
    EXPECT_GT(take.coefficient, 0.98) << "the centre's speech is not what was heard";
    EXPECT_NEAR(decibels, 20.0 * std::log10(1.0 - M_SQRT1_2), 0.2);
}

// Stereo frames then mono frames (MP3, ADTS AAC, and a FLAC whose frames
// disagree with its header): the whole file is heard, in order, to its end.
TEST_P(JoinedFile, IsHeardToItsEnd)
{
    const QString path = fixture(GetParam());
    const std::vector<float> reference = monoMix(PlayerTest::straightDecode(path));
    ASSERT_GT(reference.size(), size_t(10 * kCaptureRate));
    const float peak = peakOf(reference);
    const Loud file = loudSpan(reference, peak);
    const double length = double(reference.size()) / kCaptureRate;
    auto player = open(path);
    ASSERT_TRUE(player);
    // Repeated only when the machine broke the take, as above.
    Take take;
    Loud heard;
    bool finished = false;
    QObject::connect(player.get(), &AudioPlayer::didFinishPlaying, [&] { finished = true; });
    for (int attempt = 1; attempt <= kAttempts; ++attempt) {
        finished = false;
        take = record(
            *pulse, *player, length,
            [&] {
                player->setCurrentTime(0.0);
                player->play();
            },
            [&] { return finished; });
        if (!take.error.isEmpty())
            break;
        take.measure(reference, length);
        heard = loudSpan(take.capture, peak);
        std::printf("take %d: found at %.3f s (r=%.4f), sound from %.3f to %.3f s of %.3f to "
                    "%.3f, %d underruns, %d at the sink\n",
                    attempt, take.lagSeconds, take.coefficient, heard.first, heard.last,
                    take.lagSeconds + file.first, take.lagSeconds + file.last, take.starved,
                    take.sinkUnderruns);
        if (!take.disturbed())
            break;
    }
    ASSERT_TRUE(take.error.isEmpty()) << take.error.toStdString();
    EXPECT_TRUE(finished);
    EXPECT_GT(take.coefficient, 0.98) << "the file is not heard as it is, in order";
    // Where the speech starts and ends is held to 2 ms.
    const double tolerance = 0.002;
    EXPECT_NEAR(heard.first, take.lagSeconds + file.first, tolerance);
    EXPECT_NEAR(heard.last, take.lagSeconds + file.last, tolerance)
        << "the file's end is not heard where it should be";
}

INSTANTIATE_TEST_SUITE_P(Formats, JoinedFile,
                         ::testing::Values("joined_48k.mp3", "joined_48k.aac", "joined_48k.flac"));
