// SPDX-License-Identifier: GPL-3.0-or-later
// Threshold, silence detection, cutting, and the engine's segment list.

#include "audio/AudioManager.h"
#include "audio/Segmentation.h"
#include "common/Log.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "common/ThreadHandOff.h"

#include <QDebug>
#include <QThread>
#include <QVariant>
#include <memory>

void AudioManager::calculateAdaptiveThresholds()
{
    const AudioCharacteristics& c = m_characteristics;
    const int level = static_cast<int>(m_sensitivity);
    m_adaptiveThreshold = Segmentation::adaptiveThreshold(c.averageRMS, c.stdDev, c.maxRMS, level);
    qCInfo(lcAudio, "Calculated adaptive threshold: %.6f (sensitivity: %s)",
           static_cast<double>(m_adaptiveThreshold), Segmentation::sensitivityName(level));
}

void AudioManager::detectSilenceWithDynamicWindow()
{
    const QList<float>& rms = m_characteristics.rmsValues;
    const QList<Silence> silences =
        Segmentation::detectSilences(rms, m_adaptiveThreshold, static_cast<int>(m_sensitivity));
    m_segments =
        Segmentation::cutAtMidpoints(silences, rms.size(), m_minSegmentDuration, m_duration);
    printSliencSegment(silences, m_segments);
}

void AudioManager::printSliencSegment(const QList<Silence>& silences,
                                      const SegmentList& segments) const
{
    qCInfo(lcAudio, "Found %lu silence segments:", static_cast<unsigned long>(silences.size()));
    long number = 1;
    for (const Silence& s : silences) {
        qCInfo(lcAudio, "Silence: %ld,start=%.2fs, duration=%.2fs, midPoint=%.2fs", number++,
               static_cast<double>(s.start), static_cast<double>(s.duration),
               static_cast<double>(s.midPoint));
    }
    qCInfo(lcAudio, "Created %lu segments using silence midpoints:",
           static_cast<unsigned long>(segments.size()));
    number = 1;
    for (const Segment& s : segments)
        qCInfo(lcAudio, "Segment: %ld,start=%.2fs, duration=%.2fs", number++, s.start, s.duration);
}

AudioManager::LoadedFile AudioManager::loadedFile() const
{
    return {m_sampleRate,        m_channelInfo, m_channelCount,    m_audioFormat,
            m_totalSamples,      m_duration,    m_characteristics, m_decodedWaveform,
            m_adaptiveThreshold, m_segments,    m_analysisParts};
}

void AudioManager::restoreLoadedFile(LoadedFile file)
{
    m_sampleRate = file.sampleRate;
    m_channelInfo = std::move(file.channelInfo);
    m_channelCount = file.channelCount;
    m_audioFormat = std::move(file.audioFormat);
    m_totalSamples = file.totalSamples;
    m_duration = file.duration;
    m_characteristics = std::move(file.characteristics);
    m_decodedWaveform = std::move(file.decodedWaveform);
    m_adaptiveThreshold = file.adaptiveThreshold;
    m_segments = std::move(file.segments);
    m_analysisParts = file.analysisParts;
}

void AudioManager::processAudioFile(const QString& path, const Completion& completion)
{
    const bool onEngineThread = QThread::currentThread() == thread();
    // The lists are shared, not copied: the load assigns new ones.
    auto previous = std::make_shared<LoadedFile>(loadedFile());
    if (!analyzeAudioCharacteristics(path)) {
        restoreLoadedFile(std::move(*previous));
        if (!completion)
            return;
        if (onEngineThread)
            completion(false);
        else
            postHandedOver(this, [completion] { completion(false); });
        return;
    }
    calculateAdaptiveThresholds();
    detectSilenceWithDynamicWindow();
    Segmentation::applyLoadFixups(m_segments, m_duration);

    // The player belongs to the engine's thread, where it is used and where
    // its reports arrive. A load running on a worker hands the rest over
    // without waiting for it (the engine's thread may itself be waiting for the
    // worker), and the completion then runs on the engine's thread, whatever
    // the outcome.
    auto finish = [this, path, completion, previous] {
        if (!createAudioPlayer(path)) {
            restoreLoadedFile(std::move(*previous));
            if (completion)
                completion(false);
            return;
        }
        extractWaveformDataWithCompletionHandler(
            [this](std::optional<QList<float>> peaks, float, qint64) {
                if (peaks)
                    m_waveformData = std::move(*peaks);
            });
        if (completion)
            completion(true);
    };
    if (onEngineThread)
        finish();
    else
        postHandedOver(this, finish);
}

bool AudioManager::updateSegments(const SegmentList& segments)
{
    if (segments.isEmpty())
        return false;
    // Order and overlap are the caller's business; only an end past the
    // audio is refused, and an end exactly at the audio's end is accepted.
    for (const Segment& s : segments) {
        if (s.start + s.duration > m_duration)
            return false;
    }
    m_segments = segments;
    m_center.post(Notifications::AudioManagerSegmentsDidUpdate, QVariant::fromValue(this),
                  {{QStringLiteral("segments"), QVariant::fromValue(m_segments)}});
    return true;
}

double AudioManager::getTimestampForIndex(qint64 index) const
{
    if (index < 0 || index >= m_segments.size()) {
        qCInfo(lcAudio, "Invalid segment index: %ld", static_cast<long>(index));
        return 0.0;
    }
    return m_segments[index].start;
}

void AudioManager::mergeSegments()
{
    if (m_segments.size() < 2)
        return;
    SegmentList merged{m_segments.first()};
    for (qsizetype i = 1; i < m_segments.size(); ++i) {
        const Segment& current = m_segments[i];
        Segment& last = merged.last();
        const float gap = static_cast<float>(current.start) - static_cast<float>(last.end());
        if (m_minGapDuration > gap) {
            qCInfo(lcAudio, "Merged segments: %.2f-%.2f and %.2f-%.2f (gap: %.2f)", last.start,
                   last.end(), current.start, current.end(), static_cast<double>(gap));
            last = {last.start, current.end() - last.start};
        } else {
            merged.append(current);
        }
    }
    m_segments = merged;
}

void AudioManager::optimizeSegmentBoundaries()
{
    if (m_segments.size() == 1)
        return;
    qsizetype i = 0;
    while (i < m_segments.size() - 1) {
        const Segment& next = m_segments[i + 1];
        const double gap = next.start - m_segments[i].end();
        if (gap < 0.1) {
            m_segments[i] = {m_segments[i].start, next.end() - m_segments[i].start};
            m_segments.removeAt(i + 1);
        } else {
            ++i;
        }
    }
}
