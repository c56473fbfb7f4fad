// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <memory>
#include <vector>

namespace RubberBand {
class RubberBandStretcher;
}

// Rubber Band 3's Finer engine in real-time mode, on interleaved float
// frames: changes the tempo and keeps the pitch. Runs on the decode thread;
// blocks are at most maxBlock frames.
class TimeStretcher
{
public:
    TimeStretcher(int sampleRate, int channels, int maxBlock);
    ~TimeStretcher();
    TimeStretcher(const TimeStretcher&) = delete;
    TimeStretcher& operator=(const TimeStretcher&) = delete;

    // Starts afresh at the given playback rate (2.0 plays twice as fast).
    // The stretcher then wants startPad() frames of silence before the first
    // real input, and its first startDelay() output frames are to be dropped.
    void reset(double rate);
    qsizetype startPad() const;
    qsizetype startDelay() const;

    // Feeds up to maxBlock frames; `final` after the last input.
    void process(const float* interleaved, qsizetype frames, bool final);
    // Frames ready to retrieve; -1 once everything after a final input is out.
    qsizetype available() const;
    qsizetype retrieve(float* interleaved, qsizetype maxFrames);

private:
    int m_sampleRate;
    int m_channels;
    int m_maxBlock;
    std::unique_ptr<RubberBand::RubberBandStretcher> m_stretcher;
    std::vector<std::vector<float>> m_planes;
    std::vector<float*> m_pointers;
};
