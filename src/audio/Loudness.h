// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <cstdint>
#include <vector>

// Loudness of a recording as one RMS value per analysis frame.
namespace Loudness {

// Squares are formed in 32-bit float and summed in 64-bit; a count of 0
// gives NaN, callers never pass it.
float rms(const float* samples, uint32_t count);

// Length of an analysis frame (20 ms) in sample frames, truncated.
uint32_t frameLength(float sampleRate);

struct Statistics
{
    float average = 0.0f;
    float max = 0.0f;
    float min = 3.4028235e38f;
    float stdDev = 0.0f;
};

// Mean, extremes and population standard deviation, all in 32-bit float
// accumulated in list order.
Statistics statistics(const QList<float>& rmsValues);

// Receives one channel's samples in whatever pieces the decoder delivers and
// turns every full analysis frame into its RMS; finish() measures the shorter
// last frame over its own length.
//
// Values go to a list of their own, or, given storage sized up front, into
// it in place; values past its end then go to the list.
class FrameAccumulator
{
public:
    explicit FrameAccumulator(uint32_t frameLength, float* storage = nullptr,
                              qsizetype capacity = 0);
    void add(const float* samples, std::size_t count);
    void finish();
    // Values written so far, into the storage and the list together.
    qsizetype count() const { return m_written + m_rms.size(); }
    const QList<float>& rmsValues() const { return m_rms; }
    QList<float> takeRmsValues() { return std::move(m_rms); }

private:
    void put(float value);

    std::vector<float> m_frame;
    std::size_t m_filled = 0;
    float* m_storage;
    qsizetype m_capacity;
    qsizetype m_written = 0;
    QList<float> m_rms;
};

} // namespace Loudness
