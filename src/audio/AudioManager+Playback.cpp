// SPDX-License-Identifier: GPL-3.0-or-later
// Segment playback: the player, the one timer slot (segment end, resume, the
// gap after a repetition or position ticker), the repeat counter, the
// practice options and the playback notifications.

#include "audio/AudioManager.h"
#include "audio/AudioOutput.h"
#include "audio/AudioPlayer.h"
#include "audio/PositionTickers.h"
#include "common/Clock.h"
#include "common/Log.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "common/ThreadHandOff.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QDebug>
#include <QMetaObject>
#include <QPointer>
#include <QThreadPool>
#include <QVariant>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>

namespace {
constexpr double kEndOfFileTolerance = 0.1;
// How much sooner than the interval the segment end is first looked at: more
// than a device takes at once when it starts.
constexpr double kSegmentEndLead = 0.25;
constexpr int kFadeSteps = 11;
// The slower first repetition, as a share of the preferred rate.
constexpr float kSlowerFirstFactor = 0.75f;
} // namespace

bool AudioManager::createAudioPlayer(const QString& path)
{
    QString error;
    std::unique_ptr<AudioOutput> output = m_outputFactory ? m_outputFactory() : nullptr;
    std::unique_ptr<AudioPlayer> player = AudioPlayer::create(path, std::move(output), &error);
    if (!player) {
        // The player of the file held before stays, with the rest of it.
        qCInfo(lcAudio, "Error creating audio player: %s", qPrintable(error));
        fail(QStringLiteral("the audio cannot be played (%1)").arg(error));
        return false;
    }
    m_audioPlayer = std::move(player);
    m_playerDuration = m_duration;
    connect(m_audioPlayer.get(), &AudioPlayer::didFinishPlaying, this,
            &AudioManager::audioPlayerDidFinishPlaying);
    connect(m_audioPlayer.get(), &AudioPlayer::decodeErrorDidOccur, this,
            &AudioManager::audioPlayerDecodeErrorDidOccur);
    m_audioPlayer->setEnableRate(true);
    m_audioPlayer->setRate(m_currentRate);
    m_audioPlayer->prepareToPlay();
    return true;
}

void AudioManager::postStatus(const char* name, int status)
{
    m_center.post(name, QVariant::fromValue(this), {{QStringLiteral("status"), status}});
}

void AudioManager::cancelPlayTimer()
{
    if (m_playTimer) {
        m_playTimer->invalidate();
        m_playTimer.reset();
    }
    m_playTimerRole = PlayTimerRole::None;
    m_tickers.removeIf([](const std::shared_ptr<Timer>& t) { return !t->isValid(); });
    m_gapPaused = false;
}

void AudioManager::setPracticeOptions(const PracticeOptions& options)
{
    m_practice = options;
    m_practice.repeatGap = std::clamp(options.repeatGap, 0.0, MaxRepeatGap);
    m_practice.rewindOnResume = std::clamp(options.rewindOnResume, 0.0, MaxRewindOnResume);
}

float AudioManager::playingRate() const
{
    return m_slowRepetition ? std::max(m_currentRate * kSlowerFirstFactor, AudioPlayer::kMinRate)
                            : m_currentRate;
}

double AudioManager::segmentEndSource(qint64 index) const
{
    return index + 1 < m_segments.size() ? m_segments[index + 1].start
                                         : m_segments[index].start + m_segments[index].duration;
}

void AudioManager::playSegmentAtIndex(qint64 index)
{
    if (index < 0)
        return;
    if (index == 0)
        m_isPlaybackFinished = false;
    if (index == m_currentSegmentIndex && isPlaying()) {
        qCInfo(lcAudio, "playSegmentAtIndex: self.currentSegmentIndex==index,index=%lu,return",
               static_cast<unsigned long>(index));
        return;
    }
    if (index >= m_segments.size()) // callers never ask for one; nothing to play
        return;
    if (m_isRepeatMode)
        stopPlayback();

    const Segment segment = m_segments[index];
    const double start = std::max(segment.start, 0.0);
    // The gap after the segment is played too: up to the next one's start.
    m_segmentEndSource = segmentEndSource(index);
    // Whether the count below makes this start the segment's first.
    const bool first = index != m_currentSegmentIndex || m_currentSegmentRepeatedTimes == 0;
    m_slowRepetition = m_isRepeatMode && m_practice.slowerFirst && first;
    if (m_audioPlayer) {
        // Before the move, so that the sound is made at this rate from its start.
        m_audioPlayer->setRate(playingRate());
        // In repeat mode nothing past the segment may be heard before the
        // replay; otherwise the audio runs on into the next segment.
        if (m_isRepeatMode)
            m_audioPlayer->setCurrentTime(start, m_segmentEndSource);
        else
            m_audioPlayer->setCurrentTime(start);
    }
    play();

    if (m_isRepeatMode && index == m_currentSegmentIndex)
        ++m_currentSegmentRepeatedTimes;
    if (index != m_currentSegmentIndex) {
        m_currentSegmentRepeatedTimes = 1;
        m_currentSegmentIndex = index;
    }

    double length =
        index + 1 < m_segments.size() ? m_segments[index + 1].start - start : segment.duration;
    length /= static_cast<double>(playingRate());
    // The position ticker that play() stored in the slot is replaced, not
    // cancelled: it keeps posting positions.
    m_segmentEndRearms = 0;
    // Armed a little early: a device that has just started takes a whole
    // buffer at once, so the segment can be handed over before the interval
    // from the call is up. The timer then waits as long as the device still
    // needs, or the rest of the interval when it has taken nothing yet.
    m_segmentEndHeld = std::min(kSegmentEndLead, length);
    armEnd(PlayTimerRole::SegmentEnd, length - m_segmentEndHeld);
}

void AudioManager::armEnd(PlayTimerRole role, double seconds)
{
    QPointer<AudioManager> self(this);
    m_playTimer = m_clock->scheduledTimer(seconds, false, [self, role] {
        if (!self)
            return;
        if (role == PlayTimerRole::SegmentEnd) {
            self->segmentEndTimerFired();
        } else if (role == PlayTimerRole::ResumeEnd) {
            self->resumeTimerFired();
        } else { // the gap is over
            self->cancelPlayTimer();
            self->deliverPlaybackCompletion();
        }
    });
    m_playTimerRole = role;
}

void AudioManager::segmentEndTimerFired()
{
    // The interval runs from the call, but the device takes the segment's
    // sound at its own pace: later (its start-up, what it still held), or at
    // first faster (a buffer filled at once). The end comes when the device
    // has taken the segment's last frame, so that a replay follows it with
    // neither a cut nor a gap. A few waits at most: the device's position
    // only lags, it never stops short of an end it was given.
    constexpr int kMaxRearms = 4;
    constexpr double kCloseEnough = 0.002;
    double wait = m_segmentEndHeld;
    m_segmentEndHeld = 0.0;
    if (m_audioPlayer && m_audioPlayer->handsLatestSound())
        wait = m_audioPlayer->secondsUntilHanded(m_segmentEndSource);
    if (wait > kCloseEnough && m_segmentEndRearms < kMaxRearms) {
        ++m_segmentEndRearms;
        armEnd(PlayTimerRole::SegmentEnd, wait);
        return;
    }
    cancelPlayTimer();
    if (m_isRepeatMode) {
        m_center.post(Notifications::AutoUpdateWavePosDidUpdate, QVariant(false));
        finishRepetition();
    } else {
        // The audio plays on into the next segment; the display follows it.
        m_center.post(Notifications::AutoUpdateWavePosDidUpdate, QVariant(true));
    }
}

void AudioManager::finishRepetition()
{
    // The player stays as it is: its span is over, so the gap is silence with
    // the play head at the segment's end.
    if (m_practice.repeatGap > 0.0)
        armEnd(PlayTimerRole::RepeatGap, m_practice.repeatGap);
    else
        deliverPlaybackCompletion();
}

void AudioManager::deliverPlaybackCompletion()
{
    postHandedOver(this, [this] {
        if (m_playbackCompletionHandler)
            m_playbackCompletionHandler();
    });
}

void AudioManager::play()
{
    if (m_audioPlayer)
        m_audioPlayer->play();
    cancelPlayTimer();
    // A ticker that lives on after the segment, as every play() adds one; all
    // of them share one clock timer.
    auto ticker = m_tickerGroup->add(*m_clock);
    m_tickers.append(ticker);
    m_playTimer = std::move(ticker);
    m_playTimerRole = PlayTimerRole::Ticker;
    postStatus(Notifications::AudioPlaying, 1);
}

void AudioManager::pause()
{
    const bool gap = isInRepeatGap() || m_gapPaused;
    if (m_audioPlayer)
        m_audioPlayer->pause();
    cancelPlayTimer();
    m_gapPaused = gap;
    postStatus(Notifications::AudioPlaybackDidPause, 2);
}

void AudioManager::stop()
{
    if (m_audioPlayer)
        m_audioPlayer->stop();
    cancelPlayTimer();
    postStatus(Notifications::AudioPlayStop, 0);
}

void AudioManager::pausePlayback(PauseSound sound)
{
    const bool gap = isInRepeatGap() || m_gapPaused;
    if (m_audioPlayer && sound == PauseSound::CutOff)
        m_audioPlayer->pauseNow();
    else if (m_audioPlayer)
        m_audioPlayer->pause();
    cancelPlayTimer();
    m_gapPaused = gap;
    postStatus(Notifications::AudioPlaybackDidPause, 0);
}

void AudioManager::stopPlayback()
{
    if (m_audioPlayer)
        m_audioPlayer->stop();
    cancelPlayTimer();
}

void AudioManager::resumePlayback()
{
    if (isInRepeatGap() || m_gapPaused) {
        // The repetition was heard to its end: rather than more silence, the
        // loop goes on at once with the next repetition or segment.
        cancelPlayTimer();
        postStatus(Notifications::AudioPlaybackDidResume, 3);
        deliverPlaybackCompletion();
        return;
    }
    const bool inSegment = m_currentSegmentIndex >= 0 && m_currentSegmentIndex < m_segments.size();
    double now = m_audioPlayer ? m_audioPlayer->currentTime() : 0.0;
    bool rewound = false;
    if (m_audioPlayer && inSegment && m_practice.rewindOnResume > 0.0) {
        // A step back to pick up the words cut by the pause, never into the
        // segment before; in repeat mode still nothing past the segment.
        const double start = std::max(m_segments[m_currentSegmentIndex].start, 0.0);
        const double from = std::max(now - m_practice.rewindOnResume, start);
        if (from < now) {
            if (m_isRepeatMode)
                m_audioPlayer->setCurrentTime(from, segmentEndSource(m_currentSegmentIndex));
            else
                m_audioPlayer->setCurrentTime(from);
            now = from;
            rewound = true;
        }
    }
    if (m_audioPlayer) {
        m_audioPlayer->setRate(playingRate());
        m_audioPlayer->play();
    }
    if (inSegment) {
        const Segment segment = m_segments[m_currentSegmentIndex];
        double length =
            m_currentSegmentIndex + 1 < m_segments.size()
                ? m_segments[m_currentSegmentIndex + 1].start - now
                : segment.start + segment.duration - (rewound ? now : m_savedPlaybackPosition);
        m_resumeEndSource = now + length;
        length /= static_cast<double>(playingRate());
        armEnd(PlayTimerRole::ResumeEnd, length);
    }
    postStatus(Notifications::AudioPlaybackDidResume, 3);
}

void AudioManager::resumeTimerFired()
{
    // Unlike the segment-end timer this one always stops and always hands
    // back, in either mode; in repeat mode it ends a repetition, gap and all.
    stopPlayback();
    if (m_isRepeatMode)
        finishRepetition();
    else
        deliverPlaybackCompletion();
}

bool AudioManager::isPlaying() const
{
    return m_audioPlayer && m_audioPlayer->isPlaying();
}

void AudioManager::setPlaybackRate(float rate)
{
    if (!m_audioPlayer)
        return;
    m_audioPlayer->setEnableRate(true);
    const float before = m_currentRate;
    m_currentRate = std::clamp(rate, AudioPlayer::kMinRate, AudioPlayer::kMaxRate);
    // During the slower first repetition the new rate is slowed the same way.
    m_audioPlayer->setRate(playingRate());
    if (m_currentRate != before) {
        retimePlayTimer();
        m_center.post(Notifications::AudioPlaybackRateDidChange, QVariant::fromValue(this));
    }
}

void AudioManager::retimePlayTimer()
{
    // An end timed at the old rate would come seconds late (silence in
    // repeat mode) or early (a cut): what is left of the source is timed
    // again at the new rate from where the sound stands now.
    if (!m_playTimer || !m_audioPlayer->isPlaying())
        return;
    const bool segmentEnd = m_playTimerRole == PlayTimerRole::SegmentEnd;
    if (!segmentEnd && m_playTimerRole != PlayTimerRole::ResumeEnd)
        return;
    const double end = segmentEnd ? m_segmentEndSource : m_resumeEndSource;
    const double left =
        std::max(end - m_audioPlayer->currentTime(), 0.0) / static_cast<double>(playingRate());
    m_playTimer->invalidate();
    if (segmentEnd) {
        m_segmentEndRearms = 0;
        m_segmentEndHeld = std::min(kSegmentEndLead, left);
        armEnd(PlayTimerRole::SegmentEnd, left - m_segmentEndHeld);
    } else {
        armEnd(PlayTimerRole::ResumeEnd, left);
    }
}

void AudioManager::setRepeatTimes(qint64 times)
{
    m_maxRepeatPlayTimes = static_cast<float>(times);
}

void AudioManager::saveMaxRepeatTimesSetting(qint64 times)
{
    m_maxRepeatPlayTimes = static_cast<float>(times);
    m_defaults.setInteger(times, PreferenceKeys::MaxRepeatPlayTimes);
    m_defaults.synchronize();
}

void AudioManager::updatePlaybackPosition(int tickers)
{
    const double position = m_audioPlayer ? m_audioPlayer->currentTime() : 0.0;
    if (std::fabs(m_playerDuration - position) < kEndOfFileTolerance)
        m_isPlaybackFinished = true;
    // Built once for all the posts of this tick.
    static const QString name = QString::fromLatin1(Notifications::AudioPlaybackPositionDidUpdate);
    const QVariant object = QVariant::fromValue(this);
    const QVariantMap userInfo{{QStringLiteral("position"), position}};
    for (int i = 0; i < tickers; ++i)
        m_center.post(name, object, userInfo);
}

void AudioManager::performFadeIn()
{
    // Eleven steps 10 ms apart on the fade queue; each volume is applied on
    // the engine's thread, and only while the player is playing. The engine
    // waits for the queue before it goes away.
    const auto start = std::chrono::steady_clock::now();
    startHandedOver(m_fadeQueue.get(), [this, start] {
        for (int i = 0; i < kFadeSteps; ++i) {
            std::this_thread::sleep_until(start + std::chrono::milliseconds(10 * i));
            const float volume = std::min(1.0f, static_cast<float>(i) * 0.1f);
            postHandedOver(this, [this, volume] {
                if (m_audioPlayer && m_audioPlayer->isPlaying())
                    m_audioPlayer->setVolume(volume);
            });
        }
    });
}

void AudioManager::closeAudioFile()
{
    stop();
    cancelPlayTimer();
    if (m_audioPlayer) {
        m_audioPlayer->stop();
        m_audioPlayer.reset();
    }
    m_segments.clear();
    m_waveformData.clear();
    m_center.post(Notifications::AudioFileDidClose, QVariant::fromValue(this));
}

void AudioManager::audioPlayerDidFinishPlaying(bool)
{
    qCInfo(lcAudio, "Audio playback finished");
    m_isPlaybackFinished = true;
}

void AudioManager::audioPlayerDecodeErrorDidOccur(const QString& error)
{
    qCInfo(lcAudio, "Decode error: %s", qPrintable(error));
}
