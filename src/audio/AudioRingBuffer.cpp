// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/AudioRingBuffer.h"

#include <algorithm>
#include <bit>

AudioRingBuffer::AudioRingBuffer(qsizetype capacityFrames, int channels)
    : m_channels(channels),
      m_mask(std::bit_ceil(static_cast<uint64_t>(std::max<qsizetype>(capacityFrames, 2))) - 1),
      m_samples(std::make_unique<float[]>((m_mask + 1) * static_cast<uint64_t>(channels))),
      m_tags(std::make_unique<FrameTag[]>(m_mask + 1))
{
}

qsizetype AudioRingBuffer::writableFrames() const
{
    const uint64_t used =
        m_write.load(std::memory_order_relaxed) - m_read.load(std::memory_order_acquire);
    return static_cast<qsizetype>(m_mask + 1 - used);
}

qsizetype AudioRingBuffer::pendingFrames() const
{
    const uint64_t write = m_write.load(std::memory_order_relaxed);
    const uint64_t start = std::max(m_read.load(std::memory_order_acquire),
                                    m_flushIndex.load(std::memory_order_relaxed));
    return static_cast<qsizetype>(write - std::min(start, write));
}

void AudioRingBuffer::write(const float* interleaved, qsizetype n, uint32_t seek, double first,
                            double step)
{
    uint64_t index = m_write.load(std::memory_order_relaxed);
    const auto channels = static_cast<uint64_t>(m_channels);
    for (qsizetype i = 0; i < n; ++i, ++index) {
        const uint64_t slot = index & m_mask;
        std::copy_n(interleaved + static_cast<uint64_t>(i) * channels, channels,
                    &m_samples[slot * channels]);
        m_tags[slot] = FrameTag{seek, first + static_cast<double>(i) * step};
    }
    m_write.store(index, std::memory_order_release);
}

void AudioRingBuffer::flush()
{
    m_flushIndex.store(m_write.load(std::memory_order_relaxed), std::memory_order_release);
}

void AudioRingBuffer::skipStale() noexcept
{
    const uint64_t flushIndex = m_flushIndex.load(std::memory_order_acquire);
    if (m_read.load(std::memory_order_relaxed) < flushIndex)
        m_read.store(flushIndex, std::memory_order_release);
}

qsizetype AudioRingBuffer::read(float* out, qsizetype n, float gain, uint32_t seek,
                                FrameTag* last) noexcept
{
    // The write index first: a flush is published before the frames that
    // follow it, so seeing those frames guarantees seeing the flush.
    const uint64_t write = m_write.load(std::memory_order_acquire);
    const uint64_t flushIndex = m_flushIndex.load(std::memory_order_acquire);
    uint64_t index = std::max(m_read.load(std::memory_order_relaxed), flushIndex);
    while (index < write && m_tags[index & m_mask].seek != seek)
        ++index;
    qsizetype count = 0;
    while (count < n && index + static_cast<uint64_t>(count) < write &&
           m_tags[(index + static_cast<uint64_t>(count)) & m_mask].seek == seek)
        ++count;
    const auto channels = static_cast<uint64_t>(m_channels);
    for (qsizetype i = 0; i < count; ++i, ++index) {
        const float* src = &m_samples[(index & m_mask) * channels];
        float* dst = out + static_cast<uint64_t>(i) * channels;
        for (uint64_t c = 0; c < channels; ++c)
            dst[c] = src[c] * gain;
    }
    if (count > 0 && last)
        *last = m_tags[(index - 1) & m_mask];
    m_read.store(index, std::memory_order_release);
    return count;
}
