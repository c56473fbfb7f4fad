// SPDX-License-Identifier: GPL-3.0-or-later
// Decoding and loudness analysis. The file is decoded once: the same pass
// measures the loudness of channel 0 and collects the waveform peaks. A long
// file whose codec decodes exactly after a seek is read in parts side by
// side, one per core, and joined into what one pass would have measured.

#include "audio/AnalysisPass.h"
#include "audio/AnalysisPlan.h"
#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "audio/ChunkedAnalysis.h"
#include "audio/FourCC.h"
#include "audio/Loudness.h"
#include "common/Log.h"

#include <QDebug>
#include <QFileInfo>
#include <QThread>
#include <algorithm>
#include <optional>

float AudioManager::calculateRMSForBuffer(const float* buffer, uint32_t frameCount)
{
    return Loudness::rms(buffer, frameCount);
}

double AudioManager::getAudioDurationFromFile(const QString& path)
{
    return std::max(AudioDecoder::containerDuration(path), 0.0);
}

QString AudioManager::getAudioFormatByFormatID(uint32_t formatID)
{
    switch (formatID) {
    case FourCC::MP3:
        return QStringLiteral("MP3");
    case FourCC::AAC:
        return QStringLiteral("AAC");
    case FourCC::ALAC:
        return QStringLiteral("M4A");
    case FourCC::FLAC:
        return QStringLiteral("FLAC");
    case FourCC::LinearPCM:
        return QStringLiteral("WAV");
    default:
        return QStringLiteral("Unknown");
    }
}

QString AudioManager::getAudioFormat(const AudioStreamInfo& format)
{
    return getAudioFormatByFormatID(format.formatID);
}

int AudioManager::analysisThreads() const
{
    const int threads = m_analysisThreads.load(std::memory_order_relaxed);
    return threads > 0 ? threads : std::max(QThread::idealThreadCount(), 1);
}

void AudioManager::raiseProgress(double done)
{
    // The parts report from their own threads; the bar only ever rises.
    double seen = m_progress.load(std::memory_order_relaxed);
    while (done > seen && !m_progress.compare_exchange_weak(seen, done, std::memory_order_relaxed))
        ;
}

bool AudioManager::analyzeAudioCharacteristics(const QString& path)
{
    m_progress.store(0.0, std::memory_order_relaxed);
    m_lastError.clear();

    AudioDecoder decoder;
    if (!decoder.open(path)) {
        // An unreadable file has no samples: that is how it is reported.
        m_sampleRate = 0.0f;
        qCInfo(lcAudio, "audio samples is 0");
        if (QFileInfo(path).size() == 0)
            return fail(QStringLiteral("the file is empty"));
        return fail(
            QStringLiteral("not an audio file Kelmora can read (%1)").arg(decoder.errorString()));
    }
    // A copy: the one-pass road may open the file again.
    const AudioStreamInfo info = decoder.info();
    m_sampleRate = static_cast<float>(info.sampleRate);

    if (!decoder.openCodec()) {
        qCInfo(lcAudio, "Error reopening audio file: %s", qPrintable(decoder.errorString()));
        return fail(QStringLiteral("cannot decode %1 audio (%2)")
                        .arg(info.codecName, decoder.errorString()));
    }

    const uint32_t frameLength = Loudness::frameLength(m_sampleRate);
    const double expectedFrames = std::max(info.duration * info.sampleRate, 1.0);
    std::optional<ChunkedAnalysis::Result> decoded;
    int parts = 1;
    const AnalysisPlan plan = AnalysisPlan::make(static_cast<int64_t>(expectedFrames), frameLength,
                                                 info.sampleRate, analysisThreads());
    if (plan.parts() > 1 && ChunkedAnalysis::decodesExactlyAfterSeek(info.formatID)) {
        ChunkedAnalysis chunked(path, decoder, plan, frameLength);
        chunked.setProgress([this](double done) { raiseProgress(done); });
        decoded = chunked.run();
        if (decoded)
            parts = plan.parts();
        if (!decoded) {
            // Read again from the start; the bar goes on from where it stood.
            qCInfo(lcAudio, "Reading in one pass: %s", qPrintable(chunked.refusal()));
            if (!decoder.open(path) || !decoder.openCodec())
                return fail(QStringLiteral("cannot decode %1 audio (%2)")
                                .arg(info.codecName, decoder.errorString()));
        }
    }
    if (!decoded) {
        const double base = m_progress.load(std::memory_order_relaxed);
        AnalysisPass pass(0, AnalysisPass::kOpenEnd, frameLength);
        qint64 frames = 0;
        pass.setProgress([this, &frames, base, expectedFrames](int64_t added) {
            frames += added;
            const double done = std::min(0.99, static_cast<double>(frames) / expectedFrames);
            m_progress.store(base + (1.0 - base) * done, std::memory_order_relaxed);
        });
        if (pass.run(decoder) != AnalysisPass::Outcome::Done) {
            qCInfo(lcAudio, "Error reading audio file: %s", qPrintable(pass.errorString()));
            return fail(
                QStringLiteral("the audio data cannot be read (%1)").arg(pass.errorString()));
        }
        decoded = ChunkedAnalysis::Result{pass.takeRmsValues(), pass.peaks(), pass.frames()};
    }
    const qint64 frames = decoded->frames;

    if (frames == 0) {
        qCInfo(lcAudio, "audio samples is 0");
        return fail(QStringLiteral("the file holds no audio samples"));
    }
    // A file that stops well before the length its header states has been cut
    // short (an interrupted download, a damaged copy): refuse it rather than
    // cut segments that the header and the audio disagree on.
    const double decodedSeconds = static_cast<double>(frames) / info.sampleRate;
    if (!info.durationEstimated &&
        decodedSeconds < info.duration - std::max(0.25, 0.01 * info.duration)) {
        const QString reason =
            QStringLiteral("the audio ends at %1 s although the file states %2 s")
                .arg(decodedSeconds, 0, 'f', 1)
                .arg(info.duration, 0, 'f', 1);
        qCInfo(lcAudio, "Error reading audio file: %s", qPrintable(reason));
        return fail(reason + QStringLiteral("; it may be truncated or damaged"));
    }
    AudioCharacteristics characteristics;
    characteristics.rmsValues = std::move(decoded->rmsValues);
    const Loudness::Statistics stats = Loudness::statistics(characteristics.rmsValues);
    characteristics.averageRMS = stats.average;
    characteristics.maxRMS = stats.max;
    characteristics.minRMS = stats.min;
    characteristics.stdDev = stats.stdDev;

    // The container's duration is what "duration" means, whatever the decoded
    // length says (AAC padding, untrimmed MP3 delay). Where the container states
    // none and FFmpeg only guessed it from the bit rate (ADTS AAC, MP3 without a
    // Xing header), the guess can be off by a third, so the decoded length is used.
    const bool stated = info.duration > 0.0 && !info.durationEstimated;
    m_duration = stated ? info.duration : decodedSeconds;
    if (0.1 > m_duration) {
        qCInfo(lcAudio, "Error audio duration");
        return fail(QStringLiteral("the audio lasts less than 0.1 s"));
    }

    characteristics.sampleRate = m_sampleRate;
    characteristics.duration = m_duration;
    m_characteristics = std::move(characteristics);
    m_channelCount = info.channels;
    m_channelInfo = info.channels == 2 ? QStringLiteral("Stereo") : QStringLiteral("Mono");
    m_audioFormat = getAudioFormat(info);
    m_totalSamples = frames;
    m_analysisParts = parts;
    m_decodedWaveform = DecodedWaveform{decoded->peaks.normalized(), m_sampleRate,
                                        decoded->peaks.totalFrames(), info.bitRate};
    m_progress.store(1.0, std::memory_order_relaxed);
    return true;
}
