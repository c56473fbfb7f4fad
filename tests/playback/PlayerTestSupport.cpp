// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlayerTestSupport.h"

#include "audio/AudioDecoder.h"

#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <thread>

namespace PlayerTest {

std::vector<float> straightDecode(const QString& path, int* channels, double* sampleRate)
{
    AudioDecoder decoder;
    if (!decoder.open(path) || !decoder.openCodec()) {
        ADD_FAILURE() << "cannot decode " << path.toStdString();
        return {};
    }
    const int source = decoder.info().channels;
    const int out = std::min(source, 2);
    if (channels)
        *channels = out;
    if (sampleRate)
        *sampleRate = decoder.info().sampleRate;
    std::vector<float> all;
    std::vector<float> plane;
    while (decoder.readNext() == AudioDecoder::ReadResult::Buffer) {
        const DecodedBuffer& b = decoder.buffer();
        const size_t n = static_cast<size_t>(b.frames());
        // A packet the codec could not decode leaves silence of its length.
        const int64_t counted = int64_t(all.size()) / out;
        if (!all.empty() && b.startFrame() != DecodedBuffer::kNoFrame &&
            b.startFrame() > counted + 10)
            all.resize(size_t(b.startFrame()) * size_t(out), 0.0f);
        const size_t base = all.size();
        all.resize(base + n * static_cast<size_t>(out));
        plane.resize(n);
        for (int c = 0; c < out; ++c) {
            b.channelAsFloat(c, plane.data());
            for (size_t i = 0; i < n; ++i)
                all[base + i * static_cast<size_t>(out) + static_cast<size_t>(c)] = plane[i];
        }
    }
    return all;
}

ManualPlayer openManual(const QString& path, double latency)
{
    ManualPlayer p;
    auto output = std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual, latency);
    p.output = output.get();
    QString error;
    p.player = AudioPlayer::create(path, std::move(output), &error);
    EXPECT_TRUE(p.player) << error.toStdString();
    if (p.player)
        p.player->prepareToPlay();
    return p;
}

std::vector<float> ManualPlayer::take(qsizetype frames)
{
    const int channels = player->format().channels;
    std::vector<float> got;
    std::vector<float> block;
    got.reserve(static_cast<size_t>(frames * channels));
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    // Audio queued before the last seek is still handed out until the decode
    // thread has taken the seek; only what follows the seek is of interest.
    while (player->lastSeekTiming().seek != player->seekNumber() &&
           std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    while (static_cast<qsizetype>(got.size()) < frames * channels) {
        const qsizetype want = std::min<qsizetype>(512, frames - qsizetype(got.size()) / channels);
        const qsizetype sound = output->pull(want, block);
        got.insert(got.end(), block.begin(), block.begin() + sound * channels);
        if (sound == 0) {
            if (std::chrono::steady_clock::now() > deadline) {
                ADD_FAILURE() << "playback stalled after " << got.size() / size_t(channels)
                              << " frames";
                break;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }
    return got;
}

double frequency(const std::vector<float>& mono, qsizetype from, qsizetype to, double sampleRate)
{
    qsizetype first = -1, last = -1, crossings = 0;
    for (qsizetype i = from + 1; i < to; ++i) {
        if (mono[size_t(i - 1)] < 0.0f && mono[size_t(i)] >= 0.0f) {
            if (first < 0)
                first = i;
            last = i;
            ++crossings;
        }
    }
    if (crossings < 2)
        return 0.0;
    return double(crossings - 1) * sampleRate / double(last - first);
}

qsizetype onset(const std::vector<float>& mono, qsizetype from, float level)
{
    for (qsizetype i = from; i < qsizetype(mono.size()); ++i) {
        if (std::fabs(mono[size_t(i)]) > level)
            return i;
    }
    return -1;
}

} // namespace PlayerTest
