// Decoding and loudness analysis. The file is decoded once: the same pass
// measures the loudness of channel 0 and collects the waveform peaks.

#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "audio/FourCC.h"
#include "audio/Loudness.h"
#include "audio/WaveformPeaks.h"

#include <QDebug>
#include <QFileInfo>
#include <algorithm>
#include <vector>

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

bool AudioManager::analyzeAudioCharacteristics(const QString& path)
{
    m_progress.store(0.0, std::memory_order_relaxed);
    m_lastError.clear();

    AudioDecoder decoder;
    if (!decoder.open(path)) {
        // An unreadable file has no samples: that is how it is reported.
        m_sampleRate = 0.0f;
        qInfo("audio samples is 0");
        if (QFileInfo(path).size() == 0)
            return fail(QStringLiteral("the file is empty"));
        return fail(
            QStringLiteral("not an audio file Kelmora can read (%1)").arg(decoder.errorString()));
    }
    const AudioStreamInfo& info = decoder.info();
    m_sampleRate = static_cast<float>(info.sampleRate);

    if (!decoder.openCodec()) {
        qInfo("Error reopening audio file: %s", qPrintable(decoder.errorString()));
        return fail(QStringLiteral("cannot decode %1 audio (%2)")
                        .arg(info.codecName, decoder.errorString()));
    }

    Loudness::FrameAccumulator loudness(Loudness::frameLength(m_sampleRate));
    WaveformPeaks peaks;
    std::vector<float> channel0;
    std::vector<int16_t> interleaved;
    qint64 frames = 0;
    const double expectedFrames = std::max(info.duration * info.sampleRate, 1.0);

    for (;;) {
        const AudioDecoder::ReadResult result = decoder.readNext();
        if (result == AudioDecoder::ReadResult::EndOfStream)
            break;
        if (result == AudioDecoder::ReadResult::Error) {
            qInfo("Error reading audio file: %s", qPrintable(decoder.errorString()));
            return fail(
                QStringLiteral("the audio data cannot be read (%1)").arg(decoder.errorString()));
        }
        const DecodedBuffer& buffer = decoder.buffer();
        const auto n = static_cast<std::size_t>(buffer.frames());
        const float* samples = buffer.channelFloatData(0);
        if (!samples) {
            channel0.resize(n);
            buffer.channelAsFloat(0, channel0.data());
            samples = channel0.data();
        }
        loudness.add(samples, n);

        interleaved.resize(n * static_cast<std::size_t>(buffer.channels()));
        buffer.interleavedS16(interleaved.data());
        peaks.addBuffer(interleaved.data(), static_cast<qsizetype>(interleaved.size()),
                        buffer.channels());

        frames += static_cast<qint64>(n);
        m_progress.store(std::min(0.99, static_cast<double>(frames) / expectedFrames),
                         std::memory_order_relaxed);
    }

    if (frames == 0) {
        qInfo("audio samples is 0");
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
        qInfo("Error reading audio file: %s", qPrintable(reason));
        return fail(reason + QStringLiteral("; it may be truncated or damaged"));
    }
    loudness.finish();

    AudioCharacteristics characteristics;
    characteristics.rmsValues = loudness.takeRmsValues();
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
        qInfo("Error audio duration");
        return fail(QStringLiteral("the audio lasts less than 0.1 s"));
    }

    characteristics.sampleRate = m_sampleRate;
    characteristics.duration = m_duration;
    m_characteristics = std::move(characteristics);
    m_channelCount = info.channels;
    m_channelInfo = info.channels == 2 ? QStringLiteral("Stereo") : QStringLiteral("Mono");
    m_audioFormat = getAudioFormat(info);
    m_totalSamples = frames;
    m_decodedWaveform =
        DecodedWaveform{peaks.normalized(), m_sampleRate, peaks.totalFrames(), info.bitRate};
    m_progress.store(1.0, std::memory_order_relaxed);
    return true;
}
