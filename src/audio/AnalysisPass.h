// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Loudness.h"
#include "audio/WaveformPeaks.h"

#include <QString>
#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

class AudioDecoder;

// Decodes one span of a file, [begin, end) in sample frames, and measures it:
// the loudness of channel 0 per analysis frame and the waveform peaks of the
// 16-bit interleaved samples. A span that starts inside the file seeks to its
// start less the codec's run-in and drops what comes before.
//
// Checked, the pass also proves that it read exactly the samples a reading
// from the start would have at those positions: every buffer's time stamp
// must follow on from the one before, and the samples just before `begin`
// and just before `end` are kept for the caller to compare with those of the
// neighbouring spans.
class AnalysisPass
{
public:
    static constexpr int64_t kOpenEnd = -1;

    enum class Outcome
    {
        Done,
        Inexact, // a checked pass that cannot vouch for its samples
        Stopped, // told to stop from outside
        Error    // the decoder failed; errorString() says why
    };

    // Samples kept around a border, as the loudness and peaks see them.
    struct Window
    {
        std::vector<float> channel0;
        std::vector<int16_t> values;
        bool operator==(const Window& other) const;
    };

    // `storage` (optional) receives the loudness values in place, `capacity`
    // of them; further values are kept in rmsValues().
    AnalysisPass(int64_t begin, int64_t end, uint32_t frameLength, float* storage = nullptr,
                 qsizetype capacity = 0);

    // Turns the checks on, keeping `windowFrames` around each border.
    void setChecked(int64_t windowFrames) { m_window = windowFrames; }
    // Called after each buffer with the number of frames it added.
    void setProgress(std::function<void(int64_t)> progress) { m_progress = std::move(progress); }
    // Polled between buffers; the pass returns Stopped once it is set.
    void setStopFlag(const std::atomic<bool>* stop) { m_stop = stop; }

    // Reads from `decoder`, opened with its codec and positioned at the start.
    Outcome run(AudioDecoder& decoder);

    // Frames measured, from `begin` on.
    qint64 frames() const { return m_frames; }
    // The stream ended before `end`.
    bool endedEarly() const { return m_endedEarly; }
    qsizetype valueCount() const { return m_loudness.count(); }
    QList<float> takeRmsValues() { return m_loudness.takeRmsValues(); }
    const WaveformPeaks& peaks() const { return m_peaks; }
    const Window& head() const { return m_head; }
    const Window& tail() const { return m_tail; }
    QString errorString() const { return m_error; }

private:
    bool checked() const { return m_window > 0; }
    void feed(const float* channel0, const int16_t* values, int channels, int64_t n,
              int64_t position, int64_t keepFrom);
    void measure(const float* channel0, const int16_t* values, int channels, int64_t first,
                 int64_t count, int64_t at);

    int64_t m_begin;
    int64_t m_end;
    int64_t m_window = 0;
    Loudness::FrameAccumulator m_loudness;
    WaveformPeaks m_peaks;
    qint64 m_frames = 0;
    bool m_endedEarly = false;
    Window m_head;
    Window m_tail;
    QString m_error;
    std::function<void(int64_t)> m_progress;
    const std::atomic<bool>* m_stop = nullptr;
    std::vector<float> m_channel0;
    std::vector<int16_t> m_interleaved;
};
