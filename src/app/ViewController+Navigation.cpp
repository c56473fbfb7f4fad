// SPDX-License-Identifier: GPL-3.0-or-later
// Moving between segments, play/pause, and following the playing position.

#include "app/IconManager.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "common/Clock.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QAction>
#include <QPointer>
#include <QTimer>
#include <algorithm>

void ViewController::playSegement(qint64 index)
{
    m_pedalReleased = false;
    updateUIForCurrentSegment(index);
    m_engine.playSegmentAtIndex(index);
}

void ViewController::updateUIForCurrentSegment(qint64 index)
{
    m_currentSegmentIndex = index;
    m_waveformView->setCurrentSegment(index);
    m_table->setCurrentSegment(index);
}

void ViewController::playPreviousSegment()
{
    if (isProcessing())
        return;
    if (m_practisingHard) {
        if (const std::optional<qsizetype> previous = nextHardSegment(-1)) {
            stopAutoUpdateWavePos();
            playSegement(*previous);
        }
        return;
    }
    if (m_currentSegmentIndex <= 0)
        return;
    stopAutoUpdateWavePos();
    playSegement(--m_currentSegmentIndex);
}

void ViewController::playNextSegment()
{
    if (isProcessing())
        return;
    if (m_practisingHard) {
        if (const std::optional<qsizetype> next = nextHardSegment(1)) {
            stopAutoUpdateWavePos();
            playSegement(*next);
        }
        return;
    }
    stopAutoUpdateWavePos();
    // After the last segment the next one is the first.
    const qint64 next =
        m_currentSegmentIndex < m_engine.numberOfSegments() - 1 ? m_currentSegmentIndex + 1 : 0;
    playSegement(next);
}

void ViewController::replayCurrentSegment()
{
    if (isProcessing())
        return;
    m_pedalReleased = false;
    stopAutoUpdateWavePos();
    m_engine.playSegmentAtIndex(m_currentSegmentIndex);
}

void ViewController::playFirstSegment()
{
    if (isProcessing() || m_currentSegmentIndex <= 0)
        return;
    stopAutoUpdateWavePos();
    m_currentSegmentIndex = 0;
    playSegement(0);
}

void ViewController::togglePlayPause()
{
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    if (m_engine.isPlaying())
        m_engine.pausePlayback(AudioManager::PauseSound::CutOff);
    else
        m_engine.resumePlayback();
    updateStatusBar();
}

void ViewController::setPlayHeld(bool held)
{
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    // X repeats a held key as a release and a press with one time stamp; Qt
    // sees the pair only when both have arrived, and on a busy machine the
    // press can come late, so the release looks real. A release takes effect
    // only once it has settled: a press that follows at once keeps playing.
    constexpr double kReleaseSettles = 0.03;
    const bool settling = m_letGoTimer && m_letGoTimer->isValid();
    if (settling)
        m_letGoTimer->invalidate();
    if (held && settling)
        return;
    if (!held) {
        // The timer dies with this controller.
        m_letGoTimer = m_engine.clock().scheduledTimer(kReleaseSettles, false,
                                                       [this] { letGoOfPlay(); });
        return;
    }
    m_pedalReleased = false;
    if (!m_engine.isPlaying())
        m_engine.resumePlayback();
    updateStatusBar();
}

void ViewController::letGoOfPlay()
{
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    // Let go between two repetitions, the pedal must stop the loop as well
    // as the sound: a repetition already on its way is not started.
    m_pedalReleased = true;
    m_engine.pausePlayback(AudioManager::PauseSound::CutOff);
    updateStatusBar();
}

void ViewController::preparePlaySegment()
{
    if (isProcessing() || m_pedalReleased)
        return;
    m_engine.stopPlayback();
    // Until the learner moves on, the count does not end the repeats.
    const bool again =
        m_engine.practiceOptions().repeatUntilMovedOn ||
        static_cast<float>(m_engine.currentSegmentRepeatedTimes()) < m_engine.maxRepeatPlayTimes();
    if (m_engine.isRepeatMode() && again)
        replayCurrentSegment();
    else
        playNextSegment();
}

void ViewController::didSelectSegmentAtIndex(qint64 index)
{
    if (isProcessing())
        return;
    if (index != m_currentSegmentIndex) {
        stopAutoUpdateWavePos();
        playSegement(index);
    }
    syncJournal();
    autoSaveTranscription();
}

void ViewController::startAutoUpdateWavePosTimer(int intervalMs)
{
    m_waveformView->setAutoUpdatePos(true);
    m_autoUpdateWavePosTimer->stop();
    m_autoUpdateWavePosTimer->disconnect();
    m_autoUpdateWavePosTimer->setInterval(intervalMs);
    connect(m_autoUpdateWavePosTimer, &QTimer::timeout, this,
            &ViewController::updateCurrentSegmentIndex);
    m_autoUpdateWavePosTimer->start();
}

void ViewController::stopAutoUpdateWavePos()
{
    m_waveformView->setAutoUpdatePos(false);
}

void ViewController::updateCurrentSegmentIndex()
{
    if (isProcessing() || m_engine.numberOfSegments() == 0 || m_engine.isRepeatMode())
        return;
    if (!m_waveformView->autoUpdatePos())
        return;
    if (m_waveformView->isHidden()) {
        // With the strip switched off nothing else follows the player.
        const AudioPlayer* player = m_engine.audioPlayer();
        const double now = player ? player->currentTime() : 0.0;
        const qint64 last = m_engine.numberOfSegments() - 1;
        if (now > 0.0 && m_currentSegmentIndex >= 0 && m_currentSegmentIndex < last &&
            now > m_engine.segments()[m_currentSegmentIndex + 1].start) {
            // Playing on reaches only the hard segments while they are practised.
            if (m_practisingHard && !isHardSegment(m_currentSegmentIndex + 1)) {
                playNextSegment();
                return;
            }
            ++m_currentSegmentIndex;
            m_waveformView->setCurrentSegment(m_currentSegmentIndex);
            m_engine.setCurrentSegmentIndex(m_currentSegmentIndex);
            m_table->setCurrentSegment(m_currentSegmentIndex);
        }
    }
    if (m_engine.isPlaybackFinished()) {
        // Playing on stops shortly into the segment after the one that ran
        // out, so that the learner can type.
        playNextSegment();
        if (m_pauseTimer)
            m_pauseTimer->invalidate();
        // The timer dies with this controller, so the engine outlives it.
        AudioManager* engine = &m_engine;
        m_pauseTimer =
            m_engine.clock().scheduledTimer(0.1, false, [engine] { engine->pausePlayback(); });
        return;
    }
    if (!m_waveformView->isHidden() &&
        m_waveformView->currentSegmentIndex() != m_currentSegmentIndex) {
        if (m_practisingHard && !isHardSegment(m_waveformView->currentSegmentIndex())) {
            playNextSegment();
            return;
        }
        m_currentSegmentIndex = m_waveformView->currentSegmentIndex();
        m_engine.setCurrentSegmentIndex(m_currentSegmentIndex);
        m_table->setCurrentSegment(m_currentSegmentIndex);
    }
}

void ViewController::toggleRepeat(QAction* sender)
{
    m_engine.setRepeatMode(!m_engine.isRepeatMode());
    const QString icon =
        m_engine.isRepeatMode() ? QStringLiteral("repeat.1") : QStringLiteral("forward");
    if (sender)
        sender->setIcon(IconManager::shared().iconForName(icon));
    else
        updateToolbarItemImagName(QStringLiteral("repeatMode"), icon);
    if (isProcessing() || m_engine.numberOfSegments() == 0)
        return;
    m_waveformView->setAutoUpdatePos(!m_engine.isRepeatMode());
    armRepeatSwitchEnd();
    updateStatusBar();
}

void ViewController::armRepeatSwitchEnd()
{
    // The end of the current segment, in wall-clock time at the current rate.
    const qint64 index = qBound<qint64>(0, m_currentSegmentIndex, m_engine.numberOfSegments() - 1);
    const Segment& segment = m_engine.segments()[index];
    const AudioPlayer* player = m_engine.audioPlayer();
    const double now = player ? player->currentTime() : segment.start;
    const double rate = m_engine.currentRate() > 0.0f ? m_engine.currentRate() : 1.0;
    const double left = (segment.start + segment.duration - now) / rate;
    if (m_playbackTimer)
        m_playbackTimer->invalidate();
    QPointer<ViewController> self(this);
    m_playbackTimer = m_engine.clock().scheduledTimer(std::max(0.0, left), false, [self] {
        if (!self.isNull())
            QMetaObject::invokeMethod(self.data(), &ViewController::preparePlaySegment,
                                      Qt::QueuedConnection);
    });
}
