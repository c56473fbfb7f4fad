#include "audio/AudioDecoder.h"

#include "audio/FourCC.h"
#include "audio/FrameConverter.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/error.h>
}

#include <algorithm>
#include <cmath>
#include <mutex>

namespace {

struct FormatContextCloser
{
    void operator()(AVFormatContext* c) const { avformat_close_input(&c); }
};
struct CodecContextFreer
{
    void operator()(AVCodecContext* c) const { avcodec_free_context(&c); }
};
struct PacketFreer
{
    void operator()(AVPacket* p) const { av_packet_free(&p); }
};
struct FrameFreer
{
    void operator()(AVFrame* f) const { av_frame_free(&f); }
};

using FormatContextPtr = std::unique_ptr<AVFormatContext, FormatContextCloser>;
using CodecContextPtr = std::unique_ptr<AVCodecContext, CodecContextFreer>;
using PacketPtr = std::unique_ptr<AVPacket, PacketFreer>;
using FramePtr = std::unique_ptr<AVFrame, FrameFreer>;

QString ffmpegError(int code)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return QString::fromUtf8(text);
}

bool isLinearPcm(AVCodecID id)
{
    switch (id) {
    case AV_CODEC_ID_PCM_S8:
    case AV_CODEC_ID_PCM_U8:
    case AV_CODEC_ID_PCM_S16LE:
    case AV_CODEC_ID_PCM_S16BE:
    case AV_CODEC_ID_PCM_U16LE:
    case AV_CODEC_ID_PCM_U16BE:
    case AV_CODEC_ID_PCM_S24LE:
    case AV_CODEC_ID_PCM_S24BE:
    case AV_CODEC_ID_PCM_U24LE:
    case AV_CODEC_ID_PCM_U24BE:
    case AV_CODEC_ID_PCM_S32LE:
    case AV_CODEC_ID_PCM_S32BE:
    case AV_CODEC_ID_PCM_U32LE:
    case AV_CODEC_ID_PCM_U32BE:
    case AV_CODEC_ID_PCM_S64LE:
    case AV_CODEC_ID_PCM_S64BE:
    case AV_CODEC_ID_PCM_F16LE:
    case AV_CODEC_ID_PCM_F24LE:
    case AV_CODEC_ID_PCM_F32LE:
    case AV_CODEC_ID_PCM_F32BE:
    case AV_CODEC_ID_PCM_F64LE:
    case AV_CODEC_ID_PCM_F64BE:
    case AV_CODEC_ID_PCM_S8_PLANAR:
    case AV_CODEC_ID_PCM_S16LE_PLANAR:
    case AV_CODEC_ID_PCM_S16BE_PLANAR:
    case AV_CODEC_ID_PCM_S24LE_PLANAR:
    case AV_CODEC_ID_PCM_S32LE_PLANAR:
        return true;
    default:
        return false;
    }
}

uint32_t formatIDForCodec(AVCodecID id)
{
    switch (id) {
    case AV_CODEC_ID_MP3:
        return FourCC::MP3;
    case AV_CODEC_ID_AAC:
        return FourCC::AAC;
    case AV_CODEC_ID_ALAC:
        return FourCC::ALAC;
    case AV_CODEC_ID_FLAC:
        return FourCC::FLAC;
    default:
        return isLinearPcm(id) ? FourCC::LinearPCM : 0;
    }
}

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

// ---- DecodedBuffer ----

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

int DecodedBuffer::sampleFormat() const
{
    return m_frame ? m_frame->format : -1;
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

// ---- AudioDecoder ----

struct AudioDecoder::Impl
{
    FormatContextPtr format;
    CodecContextPtr codec;
    PacketPtr packet{av_packet_alloc()};
    FramePtr frame{av_frame_alloc()};
    int streamIndex = -1;
    AudioStreamInfo info;
    QString error;
    DecodedBuffer buffer;
    bool inputDone = false; // no more packets will be sent
    bool flushed = false;   // the decoder has been told so
    int skipped = 0;
    bool conform = true;
    int conformFormat = -1;                    // AVSampleFormat; -1: the first frame's
    std::unique_ptr<FrameConverter> converter; // made at the first frame
};

namespace {
std::once_flag g_loggingConfigured;
void configureLoggingOnce()
{
    std::call_once(g_loggingConfigured, [] { av_log_set_level(AV_LOG_QUIET); });
}
} // namespace

void AudioDecoder::setLibraryLogging(bool enabled)
{
    configureLoggingOnce();
    av_log_set_level(enabled ? AV_LOG_WARNING : AV_LOG_QUIET);
}

AudioDecoder::AudioDecoder() : d(std::make_unique<Impl>())
{
    configureLoggingOnce();
}
AudioDecoder::~AudioDecoder() = default;

bool AudioDecoder::open(const QString& path)
{
    const bool conform = d->conform;
    const int conformFormat = d->conformFormat;
    d = std::make_unique<Impl>();
    d->conform = conform;
    d->conformFormat = conformFormat;
    AVFormatContext* raw = nullptr;
    const QByteArray encoded = path.toUtf8();
    int rc = avformat_open_input(&raw, encoded.constData(), nullptr, nullptr);
    if (rc < 0) {
        d->error = ffmpegError(rc);
        return false;
    }
    d->format.reset(raw);
    rc = avformat_find_stream_info(raw, nullptr);
    if (rc < 0) {
        d->error = ffmpegError(rc);
        return false;
    }
    // The first audio stream is the one analysed and played, not FFmpeg's pick.
    for (unsigned i = 0; i < raw->nb_streams; ++i) {
        if (raw->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_AUDIO) {
            d->streamIndex = int(i);
            break;
        }
    }
    if (d->streamIndex < 0) {
        d->error = QStringLiteral("no audio stream");
        return false;
    }
    const AVStream* stream = raw->streams[d->streamIndex];
    const AVCodecParameters* par = stream->codecpar;
    if (par->sample_rate <= 0 || par->ch_layout.nb_channels <= 0) {
        d->error = QStringLiteral("the audio stream has no sample rate or channels");
        return false;
    }
    // A damaged header can declare a stream no recording has; taken at its
    // word it would be analysed as a file of many hours.
    if (!FrameConverter::plausible(par->ch_layout.nb_channels, par->sample_rate)) {
        d->error = QStringLiteral("the stream declares %1 channels at %2 Hz, which cannot be")
                       .arg(par->ch_layout.nb_channels)
                       .arg(par->sample_rate);
        return false;
    }
    AudioStreamInfo& info = d->info;
    info.formatID = formatIDForCodec(par->codec_id);
    info.codecName = QString::fromUtf8(avcodec_get_name(par->codec_id));
    info.containerName = QString::fromUtf8(raw->iformat->name);
    info.sampleRate = par->sample_rate;
    info.channels = par->ch_layout.nb_channels;
    if (raw->duration != AV_NOPTS_VALUE && raw->duration > 0)
        info.duration = double(raw->duration) / AV_TIME_BASE;
    else if (stream->duration != AV_NOPTS_VALUE && stream->duration > 0)
        info.duration = double(stream->duration) * av_q2d(stream->time_base);
    else
        info.duration = 0;
    info.durationEstimated = raw->duration_estimation_method == AVFMT_DURATION_FROM_BITRATE;
    info.bitRate = par->bit_rate > 0 ? par->bit_rate : std::max<int64_t>(raw->bit_rate, 0);
    d->buffer.m_timeBase = av_q2d(stream->time_base);
    d->buffer.m_timeBaseNum = stream->time_base.num;
    d->buffer.m_timeBaseDen = stream->time_base.den;
    d->buffer.m_sampleRate = par->sample_rate;
    if (stream->start_time != AV_NOPTS_VALUE) {
        info.startTime = double(stream->start_time) * av_q2d(stream->time_base);
        d->buffer.m_streamStart = stream->start_time;
    }
    return true;
}

bool AudioDecoder::openCodec()
{
    if (!d->format || d->streamIndex < 0)
        return false;
    const AVCodecParameters* par = d->format->streams[d->streamIndex]->codecpar;
    const AVCodec* codec = avcodec_find_decoder(par->codec_id);
    if (!codec) {
        d->error = QStringLiteral("no decoder for %1").arg(d->info.codecName);
        return false;
    }
    d->codec.reset(avcodec_alloc_context3(codec));
    if (!d->codec) {
        d->error = QStringLiteral("out of memory");
        return false;
    }
    int rc = avcodec_parameters_to_context(d->codec.get(), par);
    // With the packets' time base the codec dates the first frame after the
    // samples it trims (an MP3's encoder delay), so that time stamps count
    // from the first sample delivered.
    d->codec->pkt_timebase = d->format->streams[d->streamIndex]->time_base;
    if (rc >= 0)
        rc = avcodec_open2(d->codec.get(), codec, nullptr);
    if (rc < 0) {
        d->error = ffmpegError(rc);
        d->codec.reset();
        return false;
    }
    return true;
}

bool AudioDecoder::isOpen() const
{
    return d->codec != nullptr;
}

const AudioStreamInfo& AudioDecoder::info() const
{
    return d->info;
}

QString AudioDecoder::errorString() const
{
    return d->error;
}

const DecodedBuffer& AudioDecoder::buffer() const
{
    return d->buffer;
}

void AudioDecoder::setConformFrames(bool conform)
{
    d->conform = conform;
}

int AudioDecoder::codecSampleFormat() const
{
    return d->codec ? d->codec->sample_fmt : -1;
}

void AudioDecoder::setConformFormat(int sampleFormat)
{
    d->conformFormat = sampleFormat;
    d->converter.reset();
}

int AudioDecoder::skippedPackets() const
{
    return d->skipped;
}

AudioDecoder::ReadResult AudioDecoder::readNext()
{
    if (!d->codec)
        return ReadResult::Error;
    AVCodecContext* codec = d->codec.get();
    for (;;) {
        int rc = avcodec_receive_frame(codec, d->frame.get());
        if (rc >= 0) {
            const AVFrame* frame = d->frame.get();
            if (frame->nb_samples <= 0)
                continue;
            if (!FrameConverter::plausible(frame->ch_layout.nb_channels, frame->sample_rate)) {
                ++d->skipped;
                continue;
            }
            if (d->conform) {
                if (!d->converter)
                    d->converter = std::make_unique<FrameConverter>(
                        d->info.channels, d->conformFormat >= 0 ? d->conformFormat : frame->format,
                        static_cast<int>(d->info.sampleRate));
                if (!d->converter->matches(frame)) {
                    frame = d->converter->convert(frame);
                    if (!frame) {
                        ++d->skipped;
                        continue;
                    }
                    if (frame->nb_samples <= 0)
                        continue;
                }
            }
            d->buffer.m_frame = frame;
            return ReadResult::Buffer;
        }
        if (rc == AVERROR_EOF)
            return ReadResult::EndOfStream;
        if (rc != AVERROR(EAGAIN)) {
            // A frame the decoder could not rebuild: skip it, keep going.
            ++d->skipped;
            continue;
        }
        if (d->inputDone) {
            if (d->flushed)
                return ReadResult::EndOfStream;
            avcodec_send_packet(codec, nullptr);
            d->flushed = true;
            continue;
        }
        rc = av_read_frame(d->format.get(), d->packet.get());
        if (rc == AVERROR_EOF) {
            d->inputDone = true;
            continue;
        }
        if (rc < 0) {
            d->error = ffmpegError(rc);
            return ReadResult::Error;
        }
        if (d->packet->stream_index == d->streamIndex) {
            rc = avcodec_send_packet(codec, d->packet.get());
            if (rc < 0 && rc != AVERROR(EAGAIN))
                ++d->skipped;
        }
        av_packet_unref(d->packet.get());
    }
}

bool AudioDecoder::seek(double seconds)
{
    if (!d->codec)
        return false;
    const AVStream* stream = d->format->streams[d->streamIndex];
    const double timeBase = av_q2d(stream->time_base);
    return seekToTimestamp(
        static_cast<int64_t>(std::floor(std::max(seconds, d->info.startTime) / timeBase)));
}

bool AudioDecoder::seekToFrame(int64_t frame)
{
    if (!d->codec)
        return false;
    const AVStream* stream = d->format->streams[d->streamIndex];
    const int rate = static_cast<int>(d->info.sampleRate);
    return seekToTimestamp(d->buffer.m_streamStart +
                           av_rescale_q_rnd(std::max<int64_t>(frame, 0), AVRational{1, rate},
                                            stream->time_base, AV_ROUND_DOWN));
}

double AudioDecoder::runInSeconds(uint32_t formatID)
{
    // MP3 needs its bit reservoir and overlap (22 kHz VBR needs more than
    // 0.3 s), AAC its overlap; the others decode each frame alone.
    switch (formatID) {
    case FourCC::MP3:
        return 1.0;
    case FourCC::AAC:
        return 0.1;
    default:
        return 0.0;
    }
}

bool AudioDecoder::seekToTimestamp(int64_t ts)
{
    const int rc = av_seek_frame(d->format.get(), d->streamIndex, ts, AVSEEK_FLAG_BACKWARD);
    if (rc < 0) {
        d->error = ffmpegError(rc);
        return false;
    }
    avcodec_flush_buffers(d->codec.get());
    if (d->converter)
        d->converter->reset();
    d->inputDone = false;
    d->flushed = false;
    d->buffer.m_frame = nullptr;
    return true;
}

double AudioDecoder::containerDuration(const QString& path)
{
    AudioDecoder probe;
    if (!probe.open(path))
        return -1.0;
    return probe.info().duration;
}
