// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/WaveformPeaks.h"

#include <algorithm>
#include <cstdlib>

void WaveformPeaks::addBuffer(const int16_t* values, qsizetype valueCount, int channels)
{
    const qsizetype frames = channels >= 2 ? valueCount / 2 : valueCount;
    constexpr float kScale = 1.0f / 32768.0f;
    for (qsizetype blockStart = 0; blockStart < frames; blockStart += kBlockSize) {
        const qsizetype blockEnd = std::min<qsizetype>(blockStart + kBlockSize, frames);
        int largest = 0;
        for (qsizetype i = blockStart; i < blockEnd; ++i)
            largest = std::max(largest, std::abs(int(values[i])));
        const float peak = float(largest) * kScale;
        m_peaks.append(peak);
        m_max = std::max(m_max, peak);
    }
    m_totalFrames += frames;
}

void WaveformPeaks::append(const WaveformPeaks& next)
{
    m_peaks.append(next.m_peaks);
    m_max = std::max(m_max, next.m_max);
    m_totalFrames += next.m_totalFrames;
}

QList<float> WaveformPeaks::normalized() const
{
    if (!(m_max > 0.0f))
        return m_peaks;
    QList<float> out;
    out.reserve(m_peaks.size());
    for (float p : m_peaks)
        out.append(p / m_max);
    return out;
}
