// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/FrameConverter.h"

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/frame.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

#include <algorithm>

namespace {

constexpr int kMaxChannels = 64;
constexpr int kMinRate = 1000;
constexpr int kMaxRate = 768000;

// A layout the resampler can mix from: decoders that only give a count get
// FFmpeg's default layout for it.
AVChannelLayout usableLayout(const AVChannelLayout& layout)
{
    AVChannelLayout out{};
    if (layout.order == AV_CHANNEL_ORDER_UNSPEC || av_channel_layout_check(&layout) == 0)
        av_channel_layout_default(&out, layout.nb_channels);
    else
        av_channel_layout_copy(&out, &layout);
    return out;
}

} // namespace

struct FrameConverter::State
{
    SwrContext* swr = nullptr;
    AVFrame* out = av_frame_alloc();
    AVChannelLayout outLayout{};
    AVChannelLayout inLayout{};
    int inFormat = -1;
    int inRate = 0;
    int capacity = 0;

    ~State()
    {
        swr_free(&swr);
        av_frame_free(&out);
        av_channel_layout_uninit(&outLayout);
        av_channel_layout_uninit(&inLayout);
    }
};

FrameConverter::FrameConverter(int channels, int sampleFormat, int sampleRate, Mix mix)
    : m_channels(channels), m_format(sampleFormat), m_rate(sampleRate), m_mix(mix),
      m_state(std::make_unique<State>())
{
    av_channel_layout_default(&m_state->outLayout, channels);
}

FrameConverter::~FrameConverter() = default;

bool FrameConverter::plausible(int channels, int sampleRate)
{
    return channels >= 1 && channels <= kMaxChannels && sampleRate >= kMinRate &&
           sampleRate <= kMaxRate;
}

bool FrameConverter::matches(const AVFrame* frame) const
{
    return frame->format == m_format && frame->sample_rate == m_rate &&
           frame->ch_layout.nb_channels == m_channels;
}

void FrameConverter::reset()
{
    // A fresh resampler on the next frame: nothing of the old position leaks.
    swr_free(&m_state->swr);
    m_state->inFormat = -1;
}

bool FrameConverter::configureFor(const AVFrame* frame)
{
    State& s = *m_state;
    if (s.swr && frame->format == s.inFormat && frame->sample_rate == s.inRate &&
        av_channel_layout_compare(&frame->ch_layout, &s.inLayout) == 0)
        return true;
    swr_free(&s.swr);
    s.inFormat = -1;
    av_channel_layout_uninit(&s.inLayout);
    if (!plausible(frame->ch_layout.nb_channels, frame->sample_rate)) {
        m_error = QStringLiteral("a frame declares %1 channels at %2 Hz")
                      .arg(frame->ch_layout.nb_channels)
                      .arg(frame->sample_rate);
        return false;
    }
    AVChannelLayout in = usableLayout(frame->ch_layout);
    int rc = swr_alloc_set_opts2(&s.swr, &s.outLayout, AVSampleFormat(m_format), m_rate, &in,
                                 AVSampleFormat(frame->format), frame->sample_rate, 0, nullptr);
    av_channel_layout_uninit(&in);
    // For float output the resampler leaves its matrix unnormalised; one
    // this bound scales down only a matrix whose rows add up to more.
    if (rc >= 0 && m_mix == Mix::WithinFullScale)
        rc = av_opt_set_double(s.swr, "rematrix_maxval", 1.0, 0);
    if (rc >= 0)
        rc = swr_init(s.swr);
    if (rc < 0) {
        swr_free(&s.swr);
        m_error = QStringLiteral("a frame's layout cannot be converted");
        return false;
    }
    av_channel_layout_copy(&s.inLayout, &frame->ch_layout);
    s.inFormat = frame->format;
    s.inRate = frame->sample_rate;
    return true;
}

const AVFrame* FrameConverter::convert(const AVFrame* frame)
{
    if (!configureFor(frame))
        return nullptr;
    State& s = *m_state;
    const int wanted = swr_get_out_samples(s.swr, frame->nb_samples);
    if (wanted < 0)
        return nullptr;
    if (wanted > s.capacity || !s.out->data[0]) {
        av_frame_unref(s.out);
        s.out->format = m_format;
        s.out->sample_rate = m_rate;
        av_channel_layout_copy(&s.out->ch_layout, &s.outLayout);
        s.out->nb_samples = std::max(wanted, 1);
        if (av_frame_get_buffer(s.out, 0) < 0) {
            s.capacity = 0;
            m_error = QStringLiteral("out of memory");
            return nullptr;
        }
        s.capacity = s.out->nb_samples;
    }
    const int got =
        swr_convert(s.swr, s.out->extended_data, s.capacity,
                    const_cast<const uint8_t**>(frame->extended_data), frame->nb_samples);
    if (got < 0) {
        m_error = QStringLiteral("a frame cannot be converted");
        return nullptr;
    }
    s.out->nb_samples = got;
    s.out->best_effort_timestamp = frame->best_effort_timestamp;
    s.out->pts = frame->pts;
    // A full-scale centre folded into the sides at -3 dB on top of full-scale
    // fronts would exceed full scale; the sum is held there instead of wrapping.
    if (m_format == AV_SAMPLE_FMT_FLT || m_format == AV_SAMPLE_FMT_FLTP) {
        const bool planar = m_format == AV_SAMPLE_FMT_FLTP;
        const int planes = planar ? m_channels : 1;
        const int perPlane = planar ? got : got * m_channels;
        for (int p = 0; p < planes; ++p) {
            float* v = reinterpret_cast<float*>(s.out->extended_data[p]);
            for (int i = 0; i < perPlane; ++i)
                v[i] = std::clamp(v[i], -1.0f, 1.0f);
        }
    }
    return s.out;
}
