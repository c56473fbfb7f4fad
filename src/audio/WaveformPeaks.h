// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <cstdint>

// Peaks for the waveform strip: one per block of 100 16-bit values of each
// decoded buffer, |v| / 32768. Blocks restart at every buffer.
class WaveformPeaks
{
public:
    static constexpr int kBlockSize = 100;

    // `values` holds frames * channels interleaved values. For two or more
    // channels only the first half of them is walked (a six-channel buffer
    // counts as if it had two): the strip is drawn from that part on purpose.
    void addBuffer(const int16_t* values, qsizetype valueCount, int channels);

    const QList<float>& peaks() const { return m_peaks; }
    float maxPeak() const { return m_max; }
    qint64 totalFrames() const { return m_totalFrames; }

    // Adds the peaks of the stretch that follows this one.
    void append(const WaveformPeaks& next);

    // Peaks divided by the largest one, or unchanged when all are 0.
    QList<float> normalized() const;

private:
    QList<float> m_peaks;
    float m_max = 0.0f;
    qint64 m_totalFrames = 0;
};
