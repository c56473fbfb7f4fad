// SPDX-License-Identifier: GPL-3.0-or-later
#include "align/RecordingFeatures.h"

#include "align/Mfcc.h"
#include "audio/AudioDecoder.h"
#include "audio/FrameConverter.h"
#include "audio/Loudness.h"

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/samplefmt.h>
}

#include <QFileInfo>
#include <algorithm>
#include <chrono>

std::optional<RecordingFeatures> RecordingFeatures::read(const QString& path, int sampleRate,
                                                         const std::atomic<bool>* cancel,
                                                         std::atomic<double>* progress,
                                                         QString* error)
{
    auto fail = [error](const QString& message) -> std::optional<RecordingFeatures> {
        if (error)
            *error = message;
        return std::nullopt;
    };
    const QString name = QFileInfo(path).fileName();
    AudioDecoder decoder;
    if (!decoder.open(path) || !decoder.openCodec())
        return fail(QStringLiteral("%1: %2").arg(name, decoder.errorString()));
    const double expected = decoder.info().duration;

    FrameConverter converter(1, AV_SAMPLE_FMT_FLT, sampleRate,
                             FrameConverter::Mix::WithinFullScale);
    Mfcc mfcc(sampleRate);
    Loudness::FrameAccumulator loudness(Loudness::frameLength(float(sampleRate)));
    double featureSeconds = 0.0;
    int64_t samples = 0;
    using Clock = std::chrono::steady_clock;
    while (true) {
        if (cancel && cancel->load(std::memory_order_relaxed))
            return fail(QStringLiteral("Cancelled"));
        const AudioDecoder::ReadResult r = decoder.readNext();
        if (r == AudioDecoder::ReadResult::EndOfStream)
            break;
        if (r == AudioDecoder::ReadResult::Error)
            return fail(QStringLiteral("%1: %2").arg(name, decoder.errorString()));
        const AVFrame* converted = converter.convert(decoder.buffer().frame());
        if (!converted)
            return fail(QStringLiteral("%1: %2").arg(name, converter.errorString()));
        const auto* mono = reinterpret_cast<const float*>(converted->data[0]);
        const std::size_t count = std::size_t(converted->nb_samples);
        const Clock::time_point before = Clock::now();
        mfcc.add(mono, count);
        featureSeconds += std::chrono::duration<double>(Clock::now() - before).count();
        loudness.add(mono, count);
        samples += int64_t(count);
        if (progress && expected > 0)
            progress->store(std::min(1.0, double(samples) / sampleRate / expected),
                            std::memory_order_relaxed);
    }
    loudness.finish();
    if (samples == 0)
        return fail(QStringLiteral("%1: the file holds no sound").arg(name));

    RecordingFeatures out;
    out.mfcc = mfcc.takeFeatures();
    out.hop = mfcc.hop();
    out.loudness = loudness.takeRmsValues();
    out.duration = double(samples) / sampleRate;
    out.featureSeconds = featureSeconds;
    if (progress)
        progress->store(1.0, std::memory_order_relaxed);
    return out;
}
