// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/DecodedBuffer.h"

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/mathematics.h>
#include <libavutil/samplefmt.h>
}

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace {

// Sample conversion. `Read` turns one stored sample into a float in -1..1 and
// into a 16-bit value the way a conventional converter does.
template <typename T> float toFloat(T v);
template <> float toFloat(uint8_t v)
{
    return (int(v) - 128) * (1.0f / 128.0f);
}
template <> float toFloat(int16_t v)
{
    return v * (1.0f / 32768.0f);
}
template <> float toFloat(int32_t v)
{
    return float(v * (1.0 / 2147483648.0));
}
template <> float toFloat(int64_t v)
{
    return float(double(v) * (1.0 / 9223372036854775808.0));
}
template <> float toFloat(float v)
{
    return v;
}
template <> float toFloat(double v)
{
    return float(v);
}

// Rounds half away from zero after clamping in floating point: plain
// arithmetic the compiler can vectorise, unlike a call to lrint per sample.
inline int16_t floatToS16(float v)
{
    float scaled = v * 32768.0f;
    scaled = scaled < -32768.0f ? -32768.0f : scaled;
    scaled = scaled > 32767.0f ? 32767.0f : scaled;
    return int16_t(int(scaled + std::copysign(0.5f, scaled)));
}

template <typename T> int16_t toS16(T v);
template <> int16_t toS16(uint8_t v)
{
    return int16_t((int(v) - 128) * 256);
}
template <> int16_t toS16(int16_t v)
{
    return v;
}
template <> int16_t toS16(int32_t v)
{
    return int16_t(v >> 16);
}
template <> int16_t toS16(int64_t v)
{
    return int16_t(v >> 48);
}
template <> int16_t toS16(float v)
{
    return floatToS16(v);
}
template <> int16_t toS16(double v)
{
    return floatToS16(float(v));
}

template <typename T> void channelAsFloatT(const AVFrame* f, bool planar, int channel, float* out)
{
    const int n = f->nb_samples;
    if (planar) {
        const T* src = reinterpret_cast<const T*>(f->extended_data[channel]);
        for (int i = 0; i < n; ++i)
            out[i] = toFloat<T>(src[i]);
    } else {
        const int stride = f->ch_layout.nb_channels;
        const T* src = reinterpret_cast<const T*>(f->extended_data[0]) + channel;
        for (int i = 0; i < n; ++i)
            out[i] = toFloat<T>(src[i * stride]);
    }
}

template <typename T> void interleavedS16T(const AVFrame* f, bool planar, int16_t* out)
{
    const int n = f->nb_samples;
    const int channels = f->ch_layout.nb_channels;
    if (planar && channels == 1) {
        // Contiguous in and out: the common mono case, kept vectorisable.
        const T* __restrict src = reinterpret_cast<const T*>(f->extended_data[0]);
        int16_t* __restrict dst = out;
        for (int i = 0; i < n; ++i)
            dst[i] = toS16<T>(src[i]);
    } else if (planar) {
        for (int c = 0; c < channels; ++c) {
            const T* src = reinterpret_cast<const T*>(f->extended_data[c]);
            for (int i = 0; i < n; ++i)
                out[i * channels + c] = toS16<T>(src[i]);
        }
    } else {
        const T* src = reinterpret_cast<const T*>(f->extended_data[0]);
        const int count = n * channels;
        for (int i = 0; i < count; ++i)
            out[i] = toS16<T>(src[i]);
    }
}

// Calls fn with a typed null pointer for the frame's sample type.
template <typename Fn> void dispatchSampleType(AVSampleFormat fmt, Fn&& fn)
{
    switch (av_get_packed_sample_fmt(fmt)) {
    case AV_SAMPLE_FMT_U8:
        return fn(static_cast<uint8_t*>(nullptr));
    case AV_SAMPLE_FMT_S16:
        return fn(static_cast<int16_t*>(nullptr));
    case AV_SAMPLE_FMT_S32:
        return fn(static_cast<int32_t*>(nullptr));
    case AV_SAMPLE_FMT_S64:
        return fn(static_cast<int64_t*>(nullptr));
    case AV_SAMPLE_FMT_FLT:
        return fn(static_cast<float*>(nullptr));
    case AV_SAMPLE_FMT_DBL:
        return fn(static_cast<double*>(nullptr));
    default:
        return;
    }
}

} // namespace

int DecodedBuffer::frames() const
{
    return m_frame ? m_frame->nb_samples : 0;
}

int DecodedBuffer::channels() const
{
    return m_frame ? m_frame->ch_layout.nb_channels : 0;
}

double DecodedBuffer::startTime() const
{
    if (!m_frame || m_frame->best_effort_timestamp == AV_NOPTS_VALUE)
        return -1.0;
    return double(m_frame->best_effort_timestamp) * m_timeBase;
}

int64_t DecodedBuffer::startFrame() const
{
    if (!m_frame || m_frame->best_effort_timestamp == AV_NOPTS_VALUE || m_sampleRate <= 0)
        return kNoFrame;
    return av_rescale_q_rnd(m_frame->best_effort_timestamp - m_streamStart,
                            AVRational{m_timeBaseNum, m_timeBaseDen}, AVRational{1, m_sampleRate},
                            AV_ROUND_NEAR_INF);
}

int64_t DecodedBuffer::framesLeftOut(int64_t stamped, int64_t counted, double sampleRate)
{
    if (stamped == kNoFrame)
        return 0;
    const int64_t gap = stamped - counted;
    const auto rounding = static_cast<int64_t>(sampleRate * 0.002);
    const auto broken = static_cast<int64_t>(sampleRate);
    return gap > rounding && gap <= broken ? gap : 0;
}

void DecodedBuffer::channelAsFloat(int channel, float* out) const
{
    if (channel < 0 || channel >= channels()) {
        std::fill_n(out, frames(), 0.0f);
        return;
    }
    const auto fmt = AVSampleFormat(m_frame->format);
    const bool planar = av_sample_fmt_is_planar(fmt);
    dispatchSampleType(fmt, [&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        channelAsFloatT<T>(m_frame, planar, channel, out);
    });
}

const float* DecodedBuffer::channelFloatData(int channel) const
{
    const auto fmt = AVSampleFormat(m_frame->format);
    if (fmt == AV_SAMPLE_FMT_FLTP || (fmt == AV_SAMPLE_FMT_FLT && channels() == 1))
        return reinterpret_cast<const float*>(m_frame->extended_data[channel]);
    return nullptr;
}

void DecodedBuffer::interleavedS16(int16_t* out) const
{
    const auto fmt = AVSampleFormat(m_frame->format);
    const bool planar = av_sample_fmt_is_planar(fmt);
    dispatchSampleType(fmt, [&](auto* tag) {
        using T = std::remove_pointer_t<decltype(tag)>;
        interleavedS16T<T>(m_frame, planar, out);
    });
}
