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
    // After a cut, only what follows it counts: the frames before it are
    // being played out while the new ones are made.
    const uint64_t write = m_write.load(std::memory_order_relaxed);
    const uint64_t start = std::max({m_read.load(std::memory_order_acquire),
                                     m_flushIndex.load(std::memory_order_relaxed),
                                     m_cutTo.load(std::memory_order_relaxed)});
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
        m_tags[slot] = FrameTag{seek, static_cast<float>(step), first + static_cast<double>(i) * step};
    }
    m_write.store(index, std::memory_order_release);
}

void AudioRingBuffer::flush(qsizetype prime)
{
    m_primeFrames.store(static_cast<uint64_t>(std::max<qsizetype>(prime, 0)),
                        std::memory_order_relaxed);
    m_endIndex.store(0, std::memory_order_relaxed);
    m_cutPrime.store(0, std::memory_order_relaxed);
    m_flushIndex.store(m_write.load(std::memory_order_relaxed), std::memory_order_release);
}

void AudioRingBuffer::markEnd()
{
    m_endIndex.store(m_write.load(std::memory_order_relaxed) + 1, std::memory_order_release);
}

double AudioRingBuffer::cut(qsizetype lead, double writtenEnd)
{
    const uint64_t write = m_write.load(std::memory_order_relaxed);
    const uint64_t start = std::max(m_read.load(std::memory_order_acquire),
                                    m_flushIndex.load(std::memory_order_relaxed));
    const uint64_t from = m_cutFrom.load(std::memory_order_relaxed);
    const uint64_t to = m_cutTo.load(std::memory_order_relaxed);
    uint64_t at = start + static_cast<uint64_t>(std::max<qsizetype>(lead, 0));
    // An earlier cut the consumer has not passed yet: what it would skip is
    // not heard, so the new cut comes no later than its start (or, when the
    // consumer is already playing beyond that start, than its end).
    if (start < to)
        at = std::min(at, start < from ? from : to);
    at = std::min(at, write);
    const double position = at < write ? m_tags[at & m_mask].position : writtenEnd;
    m_cutPrime.store(0, std::memory_order_relaxed);
    m_cutFrom.store(at, std::memory_order_relaxed);
    m_cutTo.store(write, std::memory_order_release);
    return position;
}

void AudioRingBuffer::freshCut(qsizetype prime)
{
    // From the consumer's place on, the old frames go on only until the new
    // ones are ready: the device stream holding them is then let go.
    const uint64_t write = m_write.load(std::memory_order_relaxed);
    const uint64_t start = std::max(m_read.load(std::memory_order_acquire),
                                    m_flushIndex.load(std::memory_order_relaxed));
    m_cutPrime.store(static_cast<uint64_t>(std::max<qsizetype>(prime, 1)),
                     std::memory_order_relaxed);
    m_cutFrom.store(std::min(start, write), std::memory_order_relaxed);
    m_freshCuts.fetch_add(1, std::memory_order_relaxed);
    m_cutTo.store(write, std::memory_order_release);
}

bool AudioRingBuffer::freshWaiting() const
{
    return m_cutPrime.load(std::memory_order_relaxed) > 0 &&
           m_freshCrossed.load(std::memory_order_relaxed) !=
               m_freshCuts.load(std::memory_order_relaxed);
}

void AudioRingBuffer::skipStale() noexcept
{
    const uint64_t flushIndex = m_flushIndex.load(std::memory_order_acquire);
    if (m_read.load(std::memory_order_relaxed) < flushIndex)
        m_read.store(flushIndex, std::memory_order_release);
}

qsizetype AudioRingBuffer::read(float* out, qsizetype n, float gain, uint32_t oldest,
                                uint32_t seek, FrameTag* last, bool crossFresh,
                                bool* atFresh) noexcept
{
    // The write index first: a flush or a cut is published before the frames
    // that follow it, so seeing those frames guarantees seeing it.
    const uint64_t write = m_write.load(std::memory_order_acquire);
    const uint64_t flushIndex = m_flushIndex.load(std::memory_order_acquire);
    const uint64_t to = m_cutTo.load(std::memory_order_acquire);
    const uint64_t from = m_cutFrom.load(std::memory_order_relaxed);
    const uint64_t prime = m_cutPrime.load(std::memory_order_relaxed);
    const uint64_t freshCuts = m_freshCuts.load(std::memory_order_relaxed);
    uint64_t index = std::max(m_read.load(std::memory_order_relaxed), flushIndex);
    // One past the frame where the present sound ends, 0 while it goes on.
    const uint64_t end = m_endIndex.load(std::memory_order_acquire);
    if (index == flushIndex && write - flushIndex < m_primeFrames.load(std::memory_order_relaxed) &&
        end == 0)
        return 0;
    const auto channels = static_cast<uint64_t>(m_channels);
    qsizetype count = 0;
    while (count < n && index < write) {
        uint64_t limit = write;
        if (index < to) {
            // Enough of the new frames to finish this read, or all there will
            // be: the sound does not switch over only to run dry at once.
            const bool arrived =
                write - to >= std::max(static_cast<uint64_t>(n - count), prime) || end > to + 1;
            if (arrived && index >= from) {
                if (prime > 0 && !crossFresh) {
                    if (atFresh)
                        *atFresh = true;
                    break;
                }
                index = to;
                m_freshCrossed.store(freshCuts, std::memory_order_relaxed);
                continue;
            }
            // A fresh stream has nothing to play before the fresh frames.
            if (prime > 0 && crossFresh && index >= from)
                break;
            limit = arrived ? from : to;
        } else if (index == to && prime > 0 && m_freshCrossed.load(std::memory_order_relaxed) != freshCuts) {
            // The old frames ran out before the fresh ones were ready: they
            // wait for their own stream rather than follow in this one.
            if (crossFresh && write - to >= prime) {
                m_freshCrossed.store(freshCuts, std::memory_order_relaxed);
            } else {
                if (atFresh && write - to >= prime)
                    *atFresh = true;
                break;
            }
        }
        // Frames of a seek older than `oldest` are stale; one newer than
        // `seek` was asked for after this read began and waits for the next.
        while (index < limit && m_tags[index & m_mask].seek < oldest)
            ++index;
        const uint64_t begin = index;
        while (count < n && index < limit && m_tags[index & m_mask].seek <= seek) {
            const float* src = &m_samples[(index & m_mask) * channels];
            float* dst = out + static_cast<uint64_t>(count) * channels;
            for (uint64_t c = 0; c < channels; ++c)
                dst[c] = src[c] * gain;
            ++index;
            ++count;
        }
        if (index > begin && last)
            *last = m_tags[(index - 1) & m_mask];
        if (index < limit)
            break; // n copied, or a newer seek's frames
        if (limit == write)
            break;
    }
    m_read.store(index, std::memory_order_release);
    return count;
}
