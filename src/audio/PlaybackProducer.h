// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/AudioRingBuffer.h"

#include <QString>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class AudioDecoder;
class FrameConverter;
class HandedPosition;
class TimeStretcher;

// The decode thread of the player: decodes from the requested position,
// stretches when the rate is not 1.0, and keeps the ring topped up. Requests
// arrive through a mailbox of atomics that the thread reads before each block;
// a newer request replaces an older one that was not yet taken.
class PlaybackProducer
{
public:
    struct Events
    {
        // Every frame up to the end of the file has been handed to the device.
        std::function<void(uint32_t seek)> reachedEnd;
        std::function<void(const QString& message)> decodeError;
    };

    PlaybackProducer(AudioDecoder& decoder, AudioRingBuffer& ring, const HandedPosition& handed,
                     Events events);
    ~PlaybackProducer();
    PlaybackProducer(const PlaybackProducer&) = delete;
    PlaybackProducer& operator=(const PlaybackProducer&) = delete;

    // Frames of the first audio written after a seek are tagged `seek`. With
    // `end` >= 0 nothing from `end` (source seconds) on is written: the device
    // never gets audio beyond the span asked for.
    void requestSeek(double seconds, uint32_t seek, double end = -1.0);
    // A new stream that goes on from the sound rather than from a position:
    // what the device is about to take plays out while the new frames are
    // made, and they start where it stops (a rate change while playing).
    void requestContinue(uint32_t seek, double end);
    // A seek whose sound starts a fresh stream at the device: the old frames
    // play on until enough of the new ones are made to fill it.
    void requestFresh(double seconds, uint32_t seek, double end);
    // Takes effect at the next requestSeek(), requestContinue() or requestFresh().
    void requestRate(float rate);
    // Only changes how eagerly the thread polls the ring.
    void setPlaying(bool playing);

    // When (steady clock, ns) the first frame of a seek entered the ring,
    // and its source position.
    struct SeekTiming
    {
        uint32_t seek = 0;
        int64_t firstFrameNs = 0;
        double from = 0.0;
    };
    SeekTiming lastSeekTiming() const;

private:
    void run();
    void wake();
    void readMailbox();
    enum class Bridge
    {
        None,     // a plain seek: what was written is stale
        OnFromSound, // the new frames go on from where the old are cut
        Fresh     // the old frames play on until the new fill a new stream
    };
    void seekTo(double seconds, uint32_t seek, double end, Bridge bridge);
    void buildIndex();
    bool produce();
    bool produceDirect(qsizetype room);
    bool produceStretched(qsizetype room);
    bool decodeNext();
    void finish();
    void writeToRing(const float* frames, qsizetype n, double first, double step);

    AudioDecoder& m_decoder;
    AudioRingBuffer& m_ring;
    const HandedPosition& m_handed;
    Events m_events;
    double m_sampleRate;
    int m_channels;
    double m_streamStart;
    double m_runIn;
    qsizetype m_fillTarget;
    std::unique_ptr<TimeStretcher> m_stretcher;
    std::unique_ptr<FrameConverter> m_converter; // any frame to the ring's layout

    // Mailbox, written by the owner's thread.
    std::atomic<uint64_t> m_seekRequest{0};
    std::atomic<double> m_seekTarget{0.0};
    std::atomic<double> m_seekEnd{-1.0};
    std::atomic<bool> m_seekOnFromSound{false};
    std::atomic<bool> m_seekFresh{false};
    std::atomic<uint32_t> m_plainSeek{0}; // the newest request that was a seek
    std::atomic<float> m_rateRequest{1.0f};
    std::atomic<bool> m_playing{false};
    std::atomic<bool> m_quit{false};
    std::mutex m_wakeMutex;
    std::condition_variable m_wakeCondition;
    bool m_woken = false;

    // Diagnostics.
    std::atomic<uint32_t> m_timedSeek{0};
    std::atomic<int64_t> m_timedNs{0};
    std::atomic<double> m_timedFrom{0.0};

    // Decode thread only.
    uint64_t m_seenRequest = 0;
    float m_rate = 1.0f;
    bool m_positioned = false;
    bool m_indexed = false;
    bool m_timestampsRunBack = false; // seeks then count frames from the start
    uint32_t m_seek = 0;
    double m_target = 0.0;
    double m_spanEnd = -1.0;  // source seconds where this span stops, or -1
    bool m_spanEnded = false; // stopped at m_spanEnd rather than at the file's end
    int64_t m_dropUntil = 0;  // source frame where output starts
    bool m_needTimestamp = true;
    int64_t m_nextFrame = 0;      // source frame of the next decoded frame
    std::vector<float> m_pending; // decoded, interleaved output channels
    qsizetype m_pendingFrames = 0;
    qsizetype m_pendingOffset = 0;
    int64_t m_pendingStart = 0;
    bool m_inputDone = false;
    int64_t m_sourceEnd = -1; // source frames in the file, once known
    bool m_finished = false;
    bool m_endReported = false;
    uint64_t m_endIndex = 0;
    bool m_firstWritten = false;
    qsizetype m_dropOutput = 0;
    double m_outPosition = 0.0;
    double m_writtenEnd = 0.0; // source position where the last written frame ends
    std::vector<float> m_stretched;
    int m_skippedSeen = 0;
    bool m_errorReported = false;
    std::thread m_thread;
};
