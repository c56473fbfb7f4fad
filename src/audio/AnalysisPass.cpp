// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/AnalysisPass.h"

#include "audio/AudioDecoder.h"

#include <algorithm>
#include <cmath>
#include <cstring>

bool AnalysisPass::Window::operator==(const Window& other) const
{
    // Bit for bit: a sample that merely compares equal is not the same sample.
    return channel0.size() == other.channel0.size() && values == other.values &&
           std::memcmp(channel0.data(), other.channel0.data(), channel0.size() * sizeof(float)) ==
               0;
}

AnalysisPass::AnalysisPass(int64_t begin, int64_t end, uint32_t frameLength, float* storage,
                           qsizetype capacity)
    : m_begin(begin), m_end(end), m_loudness(frameLength, storage, capacity)
{
}

namespace {

void keep(AnalysisPass::Window& window, const float* channel0, const int16_t* values, int channels,
          int64_t from, int64_t count)
{
    window.channel0.insert(window.channel0.end(), channel0 + from, channel0 + from + count);
    window.values.insert(window.values.end(), values + from * channels,
                         values + (from + count) * channels);
}

} // namespace

AnalysisPass::Outcome AnalysisPass::run(AudioDecoder& decoder)
{
    const double sampleRate = decoder.info().sampleRate;
    // Samples before this are only decoded, to run the codec in.
    const int64_t keepFrom = checked() ? std::max<int64_t>(m_begin - m_window, 0) : m_begin;
    if (m_begin > 0) {
        const auto runIn = static_cast<int64_t>(
            std::ceil(AudioDecoder::runInSeconds(decoder.info().formatID) * sampleRate));
        if (!decoder.seekToFrame(keepFrom - runIn)) {
            m_error = decoder.errorString();
            return Outcome::Inexact;
        }
    }
    if (checked()) {
        m_head.channel0.reserve(static_cast<std::size_t>(m_begin - keepFrom));
        m_tail.channel0.reserve(static_cast<std::size_t>(m_window));
    }

    int64_t position = 0;
    bool first = true;
    for (;;) {
        if (m_stop && m_stop->load(std::memory_order_relaxed))
            return Outcome::Stopped;
        const AudioDecoder::ReadResult result = decoder.readNext();
        if (result == AudioDecoder::ReadResult::EndOfStream)
            break;
        if (result == AudioDecoder::ReadResult::Error) {
            m_error = decoder.errorString();
            return Outcome::Error;
        }
        const DecodedBuffer& buffer = decoder.buffer();
        const int64_t n = buffer.frames();
        if (checked()) {
            // The time stamps must place every buffer right after the one
            // before; a gap (a packet the codec dropped) or a seek that landed
            // past the samples to compare leaves nothing to vouch for.
            const int64_t stamped = buffer.startFrame();
            if (stamped == DecodedBuffer::kNoFrame)
                return Outcome::Inexact;
            if (first && m_begin > 0)
                position = stamped;
            if (stamped != position || (first && position > keepFrom))
                return Outcome::Inexact;
        }
        if (!checked() && !first) {
            const int64_t missing =
                DecodedBuffer::framesLeftOut(buffer.startFrame(), position, sampleRate);
            if (missing > 0) {
                // Silence where the stream lost a packet, so that what
                // follows keeps its time.
                const std::vector<float> silence(static_cast<std::size_t>(missing), 0.0f);
                const std::vector<int16_t> values(
                    static_cast<std::size_t>(missing * buffer.channels()), 0);
                feed(silence.data(), values.data(), buffer.channels(), missing, position, keepFrom);
                position += missing;
            }
        }
        first = false;
        const int64_t to = m_end == kOpenEnd ? position + n : std::min(position + n, m_end);
        if (to > std::max(position, keepFrom)) {
            const float* channel0 = buffer.channelFloatData(0);
            if (!channel0) {
                m_channel0.resize(static_cast<std::size_t>(n));
                buffer.channelAsFloat(0, m_channel0.data());
                channel0 = m_channel0.data();
            }
            m_interleaved.resize(static_cast<std::size_t>(n * buffer.channels()));
            buffer.interleavedS16(m_interleaved.data());
            feed(channel0, m_interleaved.data(), buffer.channels(), n, position, keepFrom);
        }
        position += n;
        if (m_end != kOpenEnd && position >= m_end)
            break;
    }
    m_endedEarly = m_end != kOpenEnd && position < m_end;
    m_loudness.finish();
    return Outcome::Done;
}

void AnalysisPass::feed(const float* channel0, const int16_t* values, int channels, int64_t n,
                        int64_t position, int64_t keepFrom)
{
    // [position, position + n) in stream frames, kept from keepFrom to m_end.
    const int64_t from = std::max(position, keepFrom);
    const int64_t to = m_end == kOpenEnd ? position + n : std::min(position + n, m_end);
    if (to > from)
        measure(channel0, values, channels, from - position, to - from, from);
}

void AnalysisPass::measure(const float* channel0, const int16_t* values, int channels,
                           int64_t first, int64_t count, int64_t at)
{
    // [at, at + count) in stream frames is [first, first + count) of the buffer.
    if (at < m_begin) {
        const int64_t before = std::min(count, m_begin - at);
        keep(m_head, channel0, values, channels, first, before);
        first += before;
        count -= before;
        at += before;
    }
    if (count <= 0)
        return;
    m_loudness.add(channel0 + first, static_cast<std::size_t>(count));
    m_peaks.addBuffer(values + first * channels, static_cast<qsizetype>(count * channels),
                      channels);
    m_frames += count;
    if (checked() && m_end != kOpenEnd && at + count > m_end - m_window) {
        const int64_t skip = std::max<int64_t>(m_end - m_window - at, 0);
        keep(m_tail, channel0, values, channels, first + skip, count - skip);
    }
    if (m_progress)
        m_progress(count);
}
