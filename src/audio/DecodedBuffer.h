// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <climits>
#include <cstdint>

struct AVFrame;

// One decoded buffer, as the codec delivered it. Conversions are done on
// demand so that each consumer pays only for what it reads.
class DecodedBuffer
{
public:
    int frames() const;
    int channels() const;
    // Start of this buffer in seconds of the stream, when the container says.
    double startTime() const;
    // Start of this buffer in sample frames from the start of the stream,
    // rounded from the container's time stamp; kNoFrame when it has none.
    static constexpr int64_t kNoFrame = INT64_MIN;
    int64_t startFrame() const;
    // Frames the stream's time stamps place before a buffer stamped at frame
    // `stamped` that the codec never delivered, given that `counted` frames
    // came before it: a packet it could not decode (a tag between parts
    // joined as they are, damaged data) still took its time. Readers fill it
    // with silence, so that every later frame stands where a seek finds it.
    // A few frames either way are codecs' rounding, and more than a second a
    // broken time stamp: neither counts.
    static int64_t framesLeftOut(int64_t stamped, int64_t counted, double sampleRate);

    // Writes frames() samples of channel `channel` as float in -1..1 (zeros
    // for a channel the buffer does not have).
    void channelAsFloat(int channel, float* out) const;
    // The decoder's own float samples of one channel when it delivers them
    // unconverted and contiguous (most lossy codecs do), else null.
    const float* channelFloatData(int channel) const;
    // Writes frames() * channels() interleaved signed 16-bit values.
    void interleavedS16(int16_t* out) const;

    // The frame itself, for a consumer that converts it as a whole.
    const AVFrame* frame() const { return m_frame; }

private:
    friend class AudioDecoder;
    const AVFrame* m_frame = nullptr;
    double m_timeBase = 0;
    int m_timeBaseNum = 0;
    int m_timeBaseDen = 1;
    int64_t m_streamStart = 0; // in time-base units
    int m_sampleRate = 0;
};
