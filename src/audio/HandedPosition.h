// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/AudioRingBuffer.h"

#include <atomic>
#include <cstdint>

// The tag of the frame the device callback handed out last, and how many
// frames (sound and silence) the device had taken from the player up to and
// including it, published by the callback (the only writer) and read by any
// thread. A sequence lock: the
// writer never waits; a reader retries in the rare case it overlapped a write.
// The fields are stored with release and loaded with acquire instead of using
// fences, so that ThreadSanitizer (which does not model fences) can check it.
class HandedPosition
{
public:
    void store(const FrameTag& tag, double deviceFrames = 0.0) noexcept
    {
        const uint32_t v = m_version.load(std::memory_order_relaxed);
        m_version.store(v + 1, std::memory_order_relaxed);
        m_seek.store(tag.seek, std::memory_order_release);
        m_position.store(tag.position, std::memory_order_release);
        m_step.store(tag.step, std::memory_order_release);
        m_deviceFrames.store(deviceFrames, std::memory_order_release);
        m_version.store(v + 2, std::memory_order_release);
    }

    FrameTag load(double* deviceFrames = nullptr) const noexcept
    {
        for (;;) {
            const uint32_t before = m_version.load(std::memory_order_acquire);
            const FrameTag tag{m_seek.load(std::memory_order_acquire),
                               m_step.load(std::memory_order_acquire),
                               m_position.load(std::memory_order_acquire)};
            const double frames = m_deviceFrames.load(std::memory_order_acquire);
            if ((before & 1u) == 0 && m_version.load(std::memory_order_relaxed) == before) {
                if (deviceFrames)
                    *deviceFrames = frames;
                return tag;
            }
        }
    }

private:
    std::atomic<uint32_t> m_version{0};
    std::atomic<uint32_t> m_seek{0};
    std::atomic<double> m_position{0.0};
    std::atomic<float> m_step{0.0f};
    std::atomic<double> m_deviceFrames{0.0};
};
