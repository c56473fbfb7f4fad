// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/Loudness.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Loudness {

float rms(const float* samples, uint32_t count)
{
    double sum = 0.0;
    for (uint32_t i = 0; i < count; ++i) {
        const float square = samples[i] * samples[i];
        sum += square;
    }
    return static_cast<float>(std::sqrt(sum / count));
}

uint32_t frameLength(float sampleRate)
{
    return static_cast<uint32_t>(static_cast<double>(sampleRate) * 0.02);
}

Statistics statistics(const QList<float>& rmsValues)
{
    Statistics s;
    float sum = 0.0f;
    for (float v : rmsValues) {
        sum += v;
        s.min = std::min(s.min, v);
        s.max = std::max(v, s.max);
    }
    const auto count = static_cast<float>(rmsValues.size());
    s.average = sum / count;
    float squares = 0.0f;
    for (float v : rmsValues)
        squares += (v - s.average) * (v - s.average);
    s.stdDev = std::sqrt(squares / count);
    return s;
}

FrameAccumulator::FrameAccumulator(uint32_t frameLength, float* storage, qsizetype capacity)
    : m_frame(std::max<uint32_t>(frameLength, 1)), m_storage(storage),
      m_capacity(storage ? capacity : 0)
{
}

void FrameAccumulator::put(float value)
{
    if (m_written < m_capacity)
        m_storage[m_written++] = value;
    else
        m_rms.append(value);
}

void FrameAccumulator::add(const float* samples, std::size_t count)
{
    // Whole frames that start at a frame boundary are measured in place.
    const std::size_t length = m_frame.size();
    while (m_filled == 0 && count >= length) {
        put(rms(samples, static_cast<uint32_t>(length)));
        samples += length;
        count -= length;
    }
    while (count > 0) {
        const std::size_t take = std::min(count, m_frame.size() - m_filled);
        std::memcpy(m_frame.data() + m_filled, samples, take * sizeof(float));
        m_filled += take;
        samples += take;
        count -= take;
        if (m_filled == m_frame.size()) {
            put(rms(m_frame.data(), static_cast<uint32_t>(m_filled)));
            m_filled = 0;
        }
    }
}

void FrameAccumulator::finish()
{
    if (m_filled > 0) {
        put(rms(m_frame.data(), static_cast<uint32_t>(m_filled)));
        m_filled = 0;
    }
}

} // namespace Loudness
