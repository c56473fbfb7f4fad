// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the channels of a file, and whatever its frames do mid-way: the
// player mixes every source channel into the output, a stream that changes
// its channel count plays to its end, and the analysis keeps 20 ms frames.

#include "PlayerTestSupport.h"
#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "support/TestSupport.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <thread>

using namespace PlayerTest;
using TestSupport::fixture;

namespace {

class JoinedStream : public ::testing::TestWithParam<const char*>
{
};

class JoinedParts : public ::testing::TestWithParam<const char*>
{
};

// Frames of the whole file at the stream's rate: what the decoder delivers,
// each buffer where its time stamp places it.
qsizetype decodedFrames(const QString& path)
{
    AudioDecoder decoder;
    if (!decoder.open(path) || !decoder.openCodec())
        return -1;
    qsizetype frames = 0;
    while (decoder.readNext() == AudioDecoder::ReadResult::Buffer) {
        EXPECT_EQ(decoder.buffer().channels(), decoder.info().channels);
        frames =
            std::max<qsizetype>(frames, decoder.buffer().startFrame()) + decoder.buffer().frames();
    }
    return frames;
}

// Peak magnitude of one output channel over [from, to) frames.
float peak(const std::vector<float>& frames, int channels, int channel, qsizetype from,
           qsizetype to)
{
    float best = 0.0f;
    for (qsizetype i = from; i < to; ++i)
        best = std::max(best, std::fabs(frames[size_t(i * channels + channel)]));
    return best;
}

} // namespace

// Stereo frames, then mono frames (a podcast joined from parts): the player
// converts each frame with its own layout, so the mono part is heard on both
// sides and the file plays to its end instead of crashing.
TEST_P(JoinedStream, PlaysToItsEndWithTheMonoPartOnBothSides)
{
    const QString path = fixture(GetParam());
    const qsizetype total = decodedFrames(path);
    ASSERT_GT(total, 44100 * 10);

    const std::vector<float> straight = straightDecode(path);
    ASSERT_EQ(straight.size(), size_t(total * 2));
    // Every frame in its place. AAC's noise substitution makes a stretch
    // decoded after a seek differ a little; a misplaced frame differs a lot.
    const auto worstAgainstStraight = [&](const std::vector<float>& got, qsizetype from) {
        float worst = 0.0f;
        for (size_t i = 0; i < got.size(); ++i)
            worst = std::max(worst, std::fabs(got[i] - straight[size_t(from * 2) + i]));
        return worst;
    };

    ManualPlayer p = openManual(path);
    ASSERT_TRUE(p.player);
    ASSERT_EQ(p.player->format().channels, 2);
    QSignalSpy finished(p.player.get(), &AudioPlayer::didFinishPlaying);
    p.player->play();
    // The decode thread indexes the file at its first idle moment; let that
    // be now, as on a device, rather than wherever a slow build finds one.
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    // Past the join, then back into the stereo part: the joined file's time
    // stamps say nothing certain about where that is.
    const std::vector<float> first = p.take(44100 * 6);
    EXPECT_LT(worstAgainstStraight(first, 0), 0.02f);
    p.player->setCurrentTime(1.0);
    // The rest of the file but its last half second, then pull until it ends.
    const std::vector<float> got = p.take(total - 22050 - 44100);
    EXPECT_LT(worstAgainstStraight(got, 44100), 0.02f);
    std::vector<float> block;
    for (int i = 0; i < 400 && finished.isEmpty(); ++i) {
        p.output->pull(1024, block);
        finished.wait(5);
    }
    EXPECT_EQ(finished.size(), 1) << "the end of the file was not reached";

    // Speech in the mono part (after 3 s) reaches both output channels alike.
    const qsizetype from = 44100 * 4, to = 44100 * 8;
    const float left = peak(got, 2, 0, from, to);
    const float right = peak(got, 2, 1, from, to);
    EXPECT_GT(left, 0.05f);
    EXPECT_NEAR(left, right, 1e-4f);
}

// Joined parts as they are: the tag heading the second MP3 part is a packet
// the codec cannot decode, yet it takes its time in the stream. Played
// through the join or reached by a seek, a moment past it sounds the same.
// (The joined FLAC is left out: its header states the first part's length,
// which is the file's duration, so nothing past the join can be sought.)
TEST_P(JoinedParts, ASeekPastTheJoinFindsWhatPlayingThroughItPutsThere)
{
    const QString path = fixture(GetParam());
    ManualPlayer through = openManual(path);
    ASSERT_TRUE(through.player);
    through.player->play();
    const std::vector<float> played = through.take(44100 * 6);

    ManualPlayer sought = openManual(path);
    sought.player->setCurrentTime(4.5);
    sought.player->play();
    const std::vector<float> got = sought.take(44100);
    float worst = 0.0f;
    for (size_t i = 0; i < got.size(); ++i)
        worst = std::max(worst, std::fabs(got[i] - played[size_t(44100 * 4.5 * 2) + i]));
    EXPECT_LT(worst, 0.02f);
    EXPECT_GT(peak(got, 2, 0, 0, 44100), 0.05f) << "nothing to compare";
}

// The analysis converts the mono frames to the stream's first layout, so that
// a 20 ms frame stays 20 ms and the file keeps its sentences.
TEST_P(JoinedStream, AnalysisKeepsTwentyMillisecondFrames)
{
    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine(defaults.store(), center);
    bool loaded = false;
    engine.processAudioFile(fixture(GetParam()), [&](bool ok) { loaded = ok; });
    ASSERT_TRUE(loaded) << qPrintable(engine.lastError());
    const qsizetype frames = decodedFrames(fixture(GetParam()));
    EXPECT_EQ(engine.totalSamples(), frames);
    EXPECT_NEAR(double(engine.audioCharacteristics().rmsValues.size()), double(frames) / 882.0,
                1.0);
}

INSTANTIATE_TEST_SUITE_P(Formats, JoinedStream,
                         ::testing::Values("stereo_then_mono.mp3", "stereo_then_mono.aac",
                                           "stereo_then_mono.flac"));
INSTANTIATE_TEST_SUITE_P(Formats, JoinedParts,
                         ::testing::Values("stereo_then_mono.mp3", "stereo_then_mono.aac"));

// FFmpeg's standard downmix (each side: its front, the centre and its
// surround at -3 dB) scaled so that a side's coefficients add up to one: a
// 5.1 file at full scale in every channel never clips, and speech that lives
// in the centre alone is heard on both sides at 1 - sqrt(1/2) (-10.7 dB).
TEST(Downmix, FoldsA51FileIntoStereoWithoutPassingFullScale)
{
    ManualPlayer loud = openManual(fixture("full_scale_51.wav"));
    ASSERT_TRUE(loud.player);
    ASSERT_EQ(loud.player->format().channels, 2);
    loud.player->play();
    const std::vector<float> sides = loud.take(44100);
    ASSERT_EQ(sides.size(), size_t(44100 * 2));
    const auto clipped =
        std::count_if(sides.begin(), sides.end(), [](float v) { return std::fabs(v) >= 0.999f; });
    EXPECT_EQ(clipped, 0) << "samples at full scale";
    EXPECT_NEAR(peak(sides, 2, 0, 0, 44100), 0.95f, 0.01f);
    EXPECT_NEAR(peak(sides, 2, 1, 0, 44100), 0.95f, 0.01f);

    const std::vector<float> mono = straightDecode(fixture("speech.wav"));
    ManualPlayer centre = openManual(fixture("speech_centre_51.wav"));
    ASSERT_TRUE(centre.player);
    centre.player->play();
    const qsizetype frames = 44100 * 4;
    const std::vector<float> got = centre.take(frames);
    ASSERT_EQ(got.size(), size_t(frames * 2));
    const float gain = 1.0f - float(M_SQRT1_2);
    float worst = 0.0f;
    for (qsizetype i = 0; i < frames; ++i) {
        const float expected = mono[size_t(i)] * gain;
        worst = std::max({worst, std::fabs(got[size_t(2 * i)] - expected),
                          std::fabs(got[size_t(2 * i + 1)] - expected)});
    }
    EXPECT_LT(worst, 1e-4f);
    EXPECT_GT(peak(got, 2, 0, 0, frames), 0.03f);
}

// A header that declares a stream no recording has is refused with its reason
// rather than analysed as a file of many hours.
TEST(ImpossibleHeader, IsRefusedWithAOneLineReason)
{
    QTemporaryDir dir;
    const QByteArray wav = TestSupport::readFile(fixture("speech.wav"));
    struct Patch
    {
        const char* name;
        int offset;
        QByteArray bytes;
    };
    // WAV: channels at byte 22 (16 bit), sample rate at 24 (32 bit).
    const Patch patches[] = {{"rate_500.wav", 24, QByteArray("\xf4\x01\x00\x00", 4)},
                             {"rate_2M.wav", 24, QByteArray("\x80\x84\x1e\x00", 4)},
                             {"channels_100.wav", 22, QByteArray("\x64\x00", 2)}};
    for (const Patch& patch : patches) {
        QByteArray bytes = wav;
        bytes.replace(patch.offset, patch.bytes.size(), patch.bytes);
        const QString path = dir.filePath(patch.name);
        TestSupport::writeFile(path, bytes);

        TestSupport::TempDefaults defaults;
        NotificationCenter center;
        AudioManager engine(defaults.store(), center);
        bool loaded = true;
        engine.processAudioFile(path, [&](bool ok) { loaded = ok; });
        EXPECT_FALSE(loaded) << patch.name;
        EXPECT_TRUE(engine.lastError().contains("cannot be")) << qPrintable(engine.lastError());
        EXPECT_FALSE(engine.lastError().contains('\n'));
    }
}
