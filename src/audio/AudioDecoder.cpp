// SPDX-License-Identifier: GPL-3.0-or-later
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
#include <atomic>
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

} // namespace

// ---- AudioDecoder ----

struct AudioDecoder::Impl
{
    QString path;
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
    d->path = path;
    d->conformFormat = conformFormat;
    AVFormatContext* raw = avformat_alloc_context();
    if (!raw) {
        d->error = QStringLiteral("out of memory");
        return false;
    }
    // Checked between reads, so that interrupt() can end a long read at once.
    raw->interrupt_callback.callback = [](void* flag) {
        return static_cast<const std::atomic<bool>*>(flag)->load(std::memory_order_relaxed) ? 1 : 0;
    };
    raw->interrupt_callback.opaque = &m_interrupted;
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

void AudioDecoder::interrupt()
{
    m_interrupted.store(true, std::memory_order_relaxed);
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

bool AudioDecoder::rewind()
{
    // A fresh opening starts at the first packet with an empty index: a seek
    // to zero goes by time stamps, which a joined file may repeat further on.
    const int skipped = d->skipped;
    const QString path = d->path; // open() replaces what holds it
    if (!open(path) || !openCodec())
        return false;
    d->skipped = skipped;
    return true;
}

double AudioDecoder::containerDuration(const QString& path)
{
    AudioDecoder probe;
    if (!probe.open(path))
        return -1.0;
    return probe.info().duration;
}
