// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/AudioDecoder.h"

#include "audio/AudioManager.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <vector>

using TestSupport::fixture;

namespace {

struct Decoded
{
    AudioStreamInfo info;
    std::vector<float> channel0;
    std::vector<int16_t> interleaved;
    int bufferCount = 0;
};

Decoded decodeAll(const QString& name)
{
    Decoded out;
    AudioDecoder decoder;
    EXPECT_TRUE(decoder.open(fixture(name))) << qPrintable(decoder.errorString());
    EXPECT_TRUE(decoder.openCodec()) << qPrintable(decoder.errorString());
    out.info = decoder.info();
    std::vector<float> f;
    std::vector<int16_t> s;
    while (decoder.readNext() == AudioDecoder::ReadResult::Buffer) {
        const DecodedBuffer& b = decoder.buffer();
        f.resize(std::size_t(b.frames()));
        s.resize(std::size_t(b.frames() * b.channels()));
        b.channelAsFloat(0, f.data());
        b.interleavedS16(s.data());
        out.channel0.insert(out.channel0.end(), f.begin(), f.end());
        out.interleaved.insert(out.interleaved.end(), s.begin(), s.end());
        ++out.bufferCount;
    }
    return out;
}

} // namespace

TEST(AudioDecoder, NamesTheFormatByCodecNotByExtension)
{
    const std::pair<const char*, const char*> cases[] = {
        {"speech.mp3", "MP3"},       {"speech_vbr.mp3", "MP3"},      {"speech_aac.m4a", "AAC"},
        {"speech.m4r", "AAC"},       {"speech.aac", "AAC"},          {"speech_alac.m4a", "M4A"},
        {"speech.flac", "FLAC"},     {"speech_24bit.flac", "FLAC"},  {"speech.wav", "WAV"},
        {"speech_float.wav", "WAV"}, {"speech.aiff", "WAV"},         {"speech.aif", "WAV"},
        {"speech.caf", "WAV"},       {"speech_alaw.wav", "Unknown"},
    };
    for (const auto& [file, name] : cases) {
        AudioDecoder decoder;
        ASSERT_TRUE(decoder.open(fixture(file))) << file;
        EXPECT_EQ(AudioManager::getAudioFormatByFormatID(decoder.info().formatID), name) << file;
        EXPECT_EQ(decoder.info().sampleRate, 44100) << file;
        // ADTS and CAF state no length: FFmpeg reckons one from the bit rate
        // (exact for CAF's constant-rate PCM, a guess for ADTS).
        const bool guessed = QString(file).endsWith(".aac") || QString(file).endsWith(".caf");
        EXPECT_EQ(decoder.info().durationEstimated, guessed) << file;
        if (!guessed) {
            EXPECT_NEAR(decoder.info().duration, 14.36, 0.05) << file;
        }
    }
}

TEST(AudioDecoder, LosslessFormatsDecodeToTheSameSamples)
{
    const Decoded wav = decodeAll("speech.wav");
    ASSERT_GT(wav.channel0.size(), 600000u);
    for (const char* file : {"speech.flac", "speech.aiff", "speech.caf", "speech_alac.m4a"}) {
        const Decoded other = decodeAll(file);
        EXPECT_EQ(other.channel0, wav.channel0) << file;
        EXPECT_EQ(other.interleaved, wav.interleaved) << file;
    }
    // Float samples that came from 16-bit values convert back to exactly them.
    const Decoded flt = decodeAll("speech_float.wav");
    EXPECT_EQ(flt.interleaved, wav.interleaved);
    EXPECT_EQ(flt.channel0, wav.channel0);
}

TEST(AudioDecoder, TwentyFourBitSourcesAgreeAcrossContainers)
{
    const Decoded flac = decodeAll("speech_24bit.flac");
    const Decoded aif = decodeAll("speech.aif");
    EXPECT_EQ(flac.channel0, aif.channel0);
    EXPECT_EQ(flac.interleaved, aif.interleaved);
    const Decoded wav16 = decodeAll("speech.wav");
    EXPECT_EQ(aif.interleaved, wav16.interleaved); // upper 16 bits of the same values
}

TEST(AudioDecoder, ChannelsAreInterleavedInOrder)
{
    const Decoded stereo = decodeAll("speech_stereo.wav");
    ASSERT_EQ(stereo.info.channels, 2);
    ASSERT_EQ(stereo.interleaved.size(), stereo.channel0.size() * 2);
    for (std::size_t i = 0; i < stereo.channel0.size(); i += 997)
        EXPECT_EQ(stereo.interleaved[2 * i], stereo.interleaved[2 * i + 1]);

    const Decoded leftSilent = decodeAll("left_silent.wav");
    bool rightLoud = false;
    for (std::size_t i = 0; i < leftSilent.channel0.size(); ++i) {
        ASSERT_EQ(leftSilent.channel0[i], 0.0f);
        rightLoud = rightLoud || leftSilent.interleaved[2 * i + 1] != 0;
    }
    EXPECT_TRUE(rightLoud);

    EXPECT_EQ(decodeAll("speech_6ch.wav").info.channels, 6);
}

TEST(AudioDecoder, RefusesWhatIsNotAudio)
{
    for (const char* file : {"empty.mp3", "text.mp3", "random.flac", "broken_header.wav"}) {
        AudioDecoder decoder;
        EXPECT_FALSE(decoder.open(fixture(file))) << file;
        EXPECT_FALSE(decoder.errorString().isEmpty()) << file;
        EXPECT_EQ(decoder.readNext(), AudioDecoder::ReadResult::Error) << file;
    }
    EXPECT_LT(AudioDecoder::containerDuration(fixture("no-such-file.mp3")), 0.0);
    EXPECT_EQ(AudioManager::getAudioDurationFromFile(fixture("no-such-file.mp3")), 0.0);
    EXPECT_NEAR(AudioManager::getAudioDurationFromFile(fixture("speech.wav")), 14.357, 0.001);
}
