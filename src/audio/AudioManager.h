// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Segment.h"
#include "preferences/PracticePreferences.h"

#include <QList>
#include <QObject>
#include <QString>
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class AudioOutput;
class AudioPlayer;
class PositionTickers;
class Clock;
class Defaults;
class NotificationCenter;
struct AudioStreamInfo;
class QThreadPool;
class Timer;

// The loudness profile of a file: one RMS value per 20 ms analysis frame,
// with its mean, extremes and spread.
struct AudioCharacteristics
{
    float averageRMS = 0.0f;
    float maxRMS = 0.0f;
    float minRMS = 0.0f;
    float stdDev = 0.0f;
    QList<float> rmsValues;
    float sampleRate = 0.0f;
    double duration = 0.0;
};

// The audio engine: analyses a file's loudness, cuts it into segments at the
// pauses and keeps the waveform peaks. One instance serves the application;
// tests construct their own.
//
// processAudioFile() may run on any thread (the window runs it on a worker
// and reads analysisProgress() meanwhile), and decodes a long file on threads
// of its own besides, one per core unless setAnalysisThreads() says
// otherwise; the player is created, the completion called and the waveform
// handed back on the thread the engine lives on. Properties are not to be
// read while a load is running. Everything else, playback included, is
// called on the engine's thread, where its timers run.
class AudioManager : public QObject
{
    Q_OBJECT
public:
    using Completion = std::function<void(bool success)>;
    // peaks (nullopt on failure), time scale of the track, frames read
    using WaveformHandler =
        std::function<void(std::optional<QList<float>> peaks, float timeScale, qint64 frames)>;

    static AudioManager& sharedInstance();

    explicit AudioManager(Defaults& defaults, NotificationCenter& center,
                          QObject* parent = nullptr);
    ~AudioManager() override;

    // ---- Loading ----
    // Analyses, segments, creates the player (set to the current rate) and
    // hands back the waveform, then calls the completion with the outcome. On
    // the engine's thread all of it happens before this returns; on another
    // thread the analysis does, and the rest, completion included, is queued
    // to the engine's thread. A load that fails leaves the engine with the
    // file it held, described, cut and playable as before.
    void processAudioFile(const QString& path, const Completion& completion);
    // Fraction of the current analysis done, 0..1; readable from any thread.
    double analysisProgress() const { return m_progress.load(std::memory_order_relaxed); }
    // Why the last load failed, in words for the user; empty after a success.
    QString lastError() const { return m_lastError; }

    // ---- Analysis ----
    bool analyzeAudioCharacteristics(const QString& path);
    // How many parts of a file are decoded side by side: 0 (the default)
    // for one per core, 1 for a single pass.
    void setAnalysisThreads(int threads) { m_analysisThreads.store(std::max(threads, 0)); }
    int analysisThreads() const;
    // The parts the last analysis was joined from; 1 when it read the file in
    // one pass (a short file, a codec that cannot start mid-stream exactly, or
    // parts that disagreed).
    int analysisParts() const { return m_analysisParts; }
    static float calculateRMSForBuffer(const float* buffer, uint32_t frameCount);
    static double getAudioDurationFromFile(const QString& path);
    static QString getAudioFormatByFormatID(uint32_t formatID);
    static QString getAudioFormat(const AudioStreamInfo& format);

    float sampleRate() const { return m_sampleRate; }
    QString channelInfo() const { return m_channelInfo; }
    int channelCount() const { return m_channelCount; }
    QString audioFormat() const { return m_audioFormat; }
    qint64 totalSamples() const { return m_totalSamples; }
    double duration() const { return m_duration; }
    double getTotalDuration() const { return m_duration; }
    qint64 bitRate() const { return m_bitRate; }
    const AudioCharacteristics& audioCharacteristics() const { return m_characteristics; }

    // ---- Segmentation ----
    void calculateAdaptiveThresholds();
    float adaptiveThreshold() const { return m_adaptiveThreshold; }
    void detectSilenceWithDynamicWindow();
    bool updateSegments(const SegmentList& segments);
    qsizetype numberOfSegments() const { return m_segments.size(); }
    double getTimestampForIndex(qint64 index) const;
    const SegmentList& segments() const { return m_segments; }
    void mergeSegments();
    void optimizeSegmentBoundaries();
    void printSliencSegment(const QList<Silence>& silences, const SegmentList& segments) const;

    // ---- Settings ----
    // How a stored value is read: below 1.0 counts as 1.0; the sensitivity is
    // then truncated to an integer.
    static double storedMinSegmentDuration(double stored);
    static qint64 storedSensitivity(double stored);
    void loadSettings();
    void saveSettings(double minSegmentDuration, qint64 sensitivity, double playSpeed);
    void resetToDefaultSettings();
    qint64 sensitivity() const { return m_sensitivity; }
    void setSensitivity(qint64 value) { m_sensitivity = value; }
    double minSegmentDuration() const { return m_minSegmentDuration; }
    void setMinSegmentDuration(double seconds) { m_minSegmentDuration = seconds; }
    double minGapDuration() const { return m_minGapDuration; }
    float currentRate() const { return m_currentRate; }
    float maxRepeatPlayTimes() const { return m_maxRepeatPlayTimes; }

    // ---- Waveform ----
    void extractWaveformDataWithCompletionHandler(const WaveformHandler& handler);
    const QList<float>& waveformData() const { return m_waveformData; }

    // ---- Playback ----
    using PlaybackCompletionHandler = std::function<void()>;
    using OutputFactory = std::function<std::unique_ptr<AudioOutput>()>;

    // Timers come from this clock (the system clock unless a test says otherwise).
    void setClock(Clock& clock) { m_clock = &clock; }
    // The same clock, for the session's timers that count in playing time.
    Clock& clock() const { return *m_clock; }
    // Makes the device output of each new player (the default device when unset).
    void setOutputFactory(OutputFactory factory) { m_outputFactory = std::move(factory); }
    AudioPlayer* audioPlayer() const { return m_audioPlayer.get(); }

    void playSegmentAtIndex(qint64 index);
    void play();
    void pause();
    void stop();
    // How a pause ends the sound: with what the device still holds played
    // out (a pause that follows the sound, such as the one just into the next
    // segment), or cut off at once (the learner's own pause).
    enum class PauseSound
    {
        PlayOut,
        CutOff
    };
    void pausePlayback(PauseSound sound = PauseSound::PlayOut);
    void resumePlayback();
    void stopPlayback();
    bool isPlaying() const;
    void setPlaybackRate(float rate);
    void setRepeatTimes(qint64 times);
    void saveMaxRepeatTimesSetting(qint64 times);
    // The practice loop's options, the stored ones until set; a change applies
    // from the next repetition. The gap and the rewind are kept in range.
    void setPracticeOptions(const PracticeOptions& options);
    const PracticeOptions& practiceOptions() const { return m_practice; }
    // In repeat mode, the silence after a repetition: the play head rests at
    // the segment's end and the completion waits for the gap to pass. Any
    // navigation, stop or pause ends it; Play after that pause, or during a
    // gap that followed a resumed stretch, goes straight on with the loop.
    bool isInRepeatGap() const { return m_playTimerRole == PlayTimerRole::RepeatGap; }
    // The ticker's action; `tickers` notifications are posted for one reading
    // of the position.
    void updatePlaybackPosition(int tickers = 1);
    static constexpr double kPositionTickerInterval = 1.0 / 12.0;
    void performFadeIn();
    void closeAudioFile();

    qint64 currentSegmentIndex() const { return m_currentSegmentIndex; }
    void setCurrentSegmentIndex(qint64 index) { m_currentSegmentIndex = index; }
    qint64 currentSegmentRepeatedTimes() const { return m_currentSegmentRepeatedTimes; }
    bool isRepeatMode() const { return m_isRepeatMode; }
    void setRepeatMode(bool repeat) { m_isRepeatMode = repeat; }
    bool isPlaybackFinished() const { return m_isPlaybackFinished; }
    double savedPlaybackPosition() const { return m_savedPlaybackPosition; }
    void setSavedPlaybackPosition(double seconds) { m_savedPlaybackPosition = seconds; }
    // Called, later and on the engine's thread, when a segment is over.
    void setPlaybackCompletionHandler(PlaybackCompletionHandler handler)
    {
        m_playbackCompletionHandler = std::move(handler);
    }

    // The player's reports.
    void audioPlayerDidFinishPlaying(bool successfully);
    void audioPlayerDecodeErrorDidOccur(const QString& error);

private:
    // What the one timer slot holds.
    enum class PlayTimerRole
    {
        None,
        Ticker,
        SegmentEnd,
        ResumeEnd,
        RepeatGap
    };

    bool fail(const QString& reason);
    bool createAudioPlayer(const QString& path);
    void cancelPlayTimer();
    void segmentEndTimerFired();
    void resumeTimerFired();
    // Arms the slot with the end of a segment, of a resumed stretch or of the
    // gap after a repetition.
    void armEnd(PlayTimerRole role, double seconds);
    // A repetition is over: the completion now, or after the gap.
    void finishRepetition();
    // The rate the sound plays at: the preferred one, slower for the first
    // repetition of a segment when the options ask for it.
    float playingRate() const;
    // Source seconds where a segment's sound ends: the next one's start, or
    // its own end for the last.
    double segmentEndSource(qint64 index) const;
    void retimePlayTimer();
    void deliverPlaybackCompletion();
    void postStatus(const char* name, int status);

    Defaults& m_defaults;
    NotificationCenter& m_center;

    // Analysis results.
    float m_sampleRate = 0.0f;
    QString m_channelInfo;
    int m_channelCount = 0;
    QString m_audioFormat;
    qint64 m_totalSamples = 0;
    double m_duration = 0.0;
    qint64 m_bitRate = 0;
    AudioCharacteristics m_characteristics;

    // Peaks collected in the analysis pass, handed out by the waveform step.
    struct DecodedWaveform
    {
        QList<float> peaks;
        float timeScale = 0.0f;
        qint64 frames = 0;
        qint64 bitRate = 0;
    };
    std::optional<DecodedWaveform> m_decodedWaveform;
    QList<float> m_waveformData;

    // What a load replaces before it knows whether it succeeds, put back
    // when it fails.
    struct LoadedFile
    {
        float sampleRate = 0.0f;
        QString channelInfo;
        int channelCount = 0;
        QString audioFormat;
        qint64 totalSamples = 0;
        double duration = 0.0;
        AudioCharacteristics characteristics;
        std::optional<DecodedWaveform> decodedWaveform;
        float adaptiveThreshold = 0.0f;
        SegmentList segments;
        int analysisParts = 0;
    };
    LoadedFile loadedFile() const;
    void restoreLoadedFile(LoadedFile file);

    // Segmentation.
    float m_adaptiveThreshold = 0.0f;
    SegmentList m_segments;
    qint64 m_sensitivity = 1;
    double m_minSegmentDuration = 1.0;
    double m_minGapDuration = 1.0;

    // Playback settings read with the others.
    float m_currentRate = 1.0f;
    float m_maxRepeatPlayTimes = 20.0f;

    std::atomic<double> m_progress{0.0};
    std::atomic<int> m_analysisThreads{0};
    int m_analysisParts = 0;
    void raiseProgress(double done);
    QString m_lastError;

    // Playback.
    Clock* m_clock;
    OutputFactory m_outputFactory;
    std::unique_ptr<AudioPlayer> m_audioPlayer;
    // The loaded file's duration as the position ticks see it. Set on the
    // engine's thread with the player, so a load analysing the next file on a
    // worker never changes it under the ticks of the one still playing.
    double m_playerDuration = 0.0;
    std::shared_ptr<Timer> m_playTimer; // the one timer slot
    // What the slot holds now; an end that a rate change must move.
    PlayTimerRole m_playTimerRole = PlayTimerRole::None;
    double m_resumeEndSource = 0.0;                 // source seconds where a resumed stretch ends
    std::unique_ptr<PositionTickers> m_tickerGroup; // one clock timer for all of them
    QList<std::shared_ptr<Timer>> m_tickers;        // every position ticker started by play()
    double m_segmentEndSource = 0.0;                // source seconds where the playing segment ends
    int m_segmentEndRearms = 0;
    double m_segmentEndHeld = 0.0; // of the interval, what the timer has yet to wait
    qint64 m_currentSegmentIndex = 0;
    qint64 m_currentSegmentRepeatedTimes = 0;
    bool m_isRepeatMode = true;
    bool m_isPlaybackFinished = false;
    double m_savedPlaybackPosition = 0.0;
    PracticeOptions m_practice;
    bool m_slowRepetition = false; // the playing repetition is the slower first one
    bool m_gapPaused = false;      // a pause ended a gap; the loop goes on at the next Play
    PlaybackCompletionHandler m_playbackCompletionHandler;
    std::unique_ptr<QThreadPool> m_fadeQueue;
};
