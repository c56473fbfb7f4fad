// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/AudioOutput.h"
#include "audio/AudioRingBuffer.h"
#include "audio/HandedPosition.h"
#include "audio/PlaybackProducer.h"

#include <QObject>
#include <QString>
#include <atomic>
#include <memory>

class AudioDecoder;

// Plays one audio file: play, pause, stop, a current time that can be read and
// set to the sample, a rate of 0.3 to 3.0 with the pitch kept, and a volume.
// A decode thread (PlaybackProducer) decodes from the requested position and
// stretches into a lock-free ring; the output's callback (render) only copies
// from it. All public functions are for the thread the player lives on; the
// two signals arrive there too.
class AudioPlayer : public QObject, private AudioRenderSource
{
    Q_OBJECT
public:
    static constexpr float kMinRate = 0.3f;
    static constexpr float kMaxRate = 3.0f;

    // Opens the file for playing through `output` (the default device when
    // null). Returns null with *error set when the file cannot be played.
    static std::unique_ptr<AudioPlayer> create(const QString& path,
                                               std::unique_ptr<AudioOutput> output, QString* error);
    ~AudioPlayer() override;

    QString path() const { return m_path; }
    double duration() const { return m_duration; }
    const OutputFormat& format() const { return m_format; }
    AudioOutput* output() const { return m_output.get(); }

    // Starts the output device, so that play() starts at once. Falls back to a
    // silent output when the device cannot be opened. play() calls it if needed.
    bool prepareToPlay();
    bool play();
    void pause();
    // As pause(), and what the device still holds is dropped, so that the
    // sound stops now rather than when the device has played it out. The
    // next play() starts from what was heard last.
    void pauseNow();
    // As pause(); the position is kept.
    void stop();
    bool isPlaying() const { return m_playing; }

    // The source position, in seconds, of what is being heard now.
    double currentTime() const;
    // Moves to `seconds`; the next sound heard is the sample at that time.
    void setCurrentTime(double seconds);
    // As above, and the play() that follows stops handing out sound at `end`
    // (source seconds): the device is never given audio beyond the span. A
    // later play() without a new span plays on from where it stands.
    void setCurrentTime(double seconds, double end);
    // Whether the device has taken any of the sound since the last move (a
    // rate change does not count as one: its sound goes on from before).
    bool handsLatestSound() const;
    // Wall seconds until the device will have taken every frame before
    // `sourceSeconds` at the present rate; 0 when it has, or when it has not
    // yet taken anything since the last move.
    double secondsUntilHanded(double sourceSeconds) const;

    // The rate is applied only while rate control is enabled.
    void setEnableRate(bool enable);
    bool enableRate() const { return m_enableRate; }
    // Clamped to 0.3..3.0. Changes take effect at once, also while playing.
    void setRate(float rate);
    float rate() const { return m_rate; }

    void setVolume(float volume);
    float volume() const { return m_volume.load(std::memory_order_relaxed); }

    // For tests and benchmarks: the frame the device took last, and when the
    // first frame after the last seek entered the ring.
    FrameTag handedFrame() const { return m_handed.load(); }
    uint32_t seekNumber() const { return m_seekNumber; }
    // How often the sound had a gap: the device found the ring empty and more
    // of the same sound followed (the end of a span or of the file is not one).
    int shortReads() const { return m_shortReads.load(std::memory_order_relaxed); }
    PlaybackProducer::SeekTiming lastSeekTiming() const { return m_producer->lastSeekTiming(); }

signals:
    // The end of the file was played (the position returns to 0).
    void didFinishPlaying(bool successfully);
    void decodeErrorDidOccur(const QString& message);

private:
    AudioPlayer(const QString& path, std::unique_ptr<AudioDecoder> decoder,
                std::unique_ptr<AudioOutput> output);
    qsizetype render(float* out, qsizetype frames) noexcept override;
    bool holdsForFreshStream() const noexcept override;
    void resumeInFreshStream() noexcept override;
    void applyRate();
    bool handsLatestSound(const FrameTag& handed) const;
    void onReachedEnd(uint32_t seek);

    QString m_path;
    double m_duration = 0.0;
    OutputFormat m_format;
    std::unique_ptr<AudioDecoder> m_decoder;
    std::unique_ptr<AudioOutput> m_output;
    AudioRingBuffer m_ring;
    HandedPosition m_handed;
    std::unique_ptr<PlaybackProducer> m_producer;

    bool m_prepared = false;
    bool m_playing = false;
    bool m_enableRate = false;
    float m_rate = 1.0f;
    float m_appliedRate = 1.0f; // what the decode thread was last asked for
    double m_target = 0.0;      // where the sound of the present seek number starts
    uint32_t m_seekNumber = 0;
    double m_spanEnd = -1.0;  // where the current span stops, or -1
    bool m_spanFresh = false; // set by setCurrentTime(seconds, end), taken by play()
    double m_floor = 0.0;     // currentTime() never reports less until the device moves on
    // A rate change heard in a fresh stream: its seek number (0 when none is
    // on its way) and where its sound starts, which the ear does not pass
    // before it is heard.
    uint32_t m_freshSeek = 0;
    double m_freshFrom = 0.0;

    // Read by the device callback.
    std::atomic<bool> m_audible{false};
    std::atomic<uint32_t> m_wantedSeek{0};
    // The oldest seek whose frames may still be heard: the last plain move.
    // The rate changes after it let their predecessors' sound play on.
    std::atomic<uint32_t> m_oldestSeek{0};
    std::atomic<int> m_shortReads{0};
    uint32_t m_handedSeek = 0; // device callback only
    bool m_ranDry = false;     // device callback only
    std::atomic<bool> m_holding{false}; // at a fresh cut, waiting for the new stream
    std::atomic<bool> m_resumed{false}; // the new stream asked for it
    uint64_t m_deviceFrames = 0; // device callback only: every frame it took
    std::atomic<float> m_volume{1.0f};
};
