// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <memory>

struct AVFrame;

// Converts decoded frames to one fixed layout, sample format and rate with
// FFmpeg's resampler. Each frame is converted from its own layout, format and
// rate, so a stream whose frames change any of them mid-way comes out uniform;
// the resampler is rebuilt whenever the incoming frame differs from the last.
// A layout with more channels than the target is folded in with FFmpeg's
// standard downmix (centre and surrounds at -3 dB, LFE left out), scaled
// when asked so that it cannot pass full scale.
class FrameConverter
{
public:
    enum class Mix
    {
        // FFmpeg's coefficients as they are: a float sum may pass full scale.
        Standard,
        // Scaled so that no output channel's coefficients add up to more
        // than one: a file at full scale in every channel stays below it
        // (what is heard must never clip).
        WithinFullScale
    };

    // `sampleFormat` is an AVSampleFormat. Channels in FFmpeg's default order
    // for their count.
    FrameConverter(int channels, int sampleFormat, int sampleRate, Mix mix = Mix::Standard);
    ~FrameConverter();
    FrameConverter(const FrameConverter&) = delete;
    FrameConverter& operator=(const FrameConverter&) = delete;

    // True when `frame` already has the target layout, format and rate.
    bool matches(const AVFrame* frame) const;
    // Converts `frame`; the result stays valid until the next call. Null when
    // the frame cannot be converted (an impossible layout or rate), with
    // errorString() saying why.
    const AVFrame* convert(const AVFrame* frame);
    // Drops what the resampler holds back (after a seek).
    void reset();
    QString errorString() const { return m_error; }

    // Plausible parameters for a decoded stream: 1 to 64 channels, 1 kHz to
    // 768 kHz. Anything else is damaged data.
    static bool plausible(int channels, int sampleRate);

private:
    bool configureFor(const AVFrame* frame);

    int m_channels;
    int m_format;
    int m_rate;
    Mix m_mix;
    struct State;
    std::unique_ptr<State> m_state;
    QString m_error;
};
