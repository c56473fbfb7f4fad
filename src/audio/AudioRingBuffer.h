// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <atomic>
#include <cstdint>
#include <memory>

// Where a frame in the ring came from: the seek request it descends from, its
// position in the source, in seconds, and how far the source moves per frame.
// The output side publishes the tag of what it last handed to the device,
// which is how the player knows what is
// being heard.
struct FrameTag
{
    uint32_t seek = 0;
    float step = 0.0f; // source seconds per frame: the rate over the sample rate
    double position = 0.0;
};

// A single-producer single-consumer ring of interleaved float frames, each
// with a FrameTag. The producer (decode thread) writes, the consumer (the
// device callback) reads; neither ever blocks, locks or allocates. Indices
// grow without wrapping; the slot of index i is i modulo the capacity.
//
// A flush is requested by the producer: every frame written before it is
// stale and the consumer skips over it at its next read. The producer never
// overwrites a slot the consumer may still be reading, so after a flush new
// frames only go into space the consumer has already released; the producer
// therefore keeps the ring well below full (see fillTarget in the player).
//
// A cut is the gentler flush of a rate change: the consumer goes on with the
// frames already written up to the cut's start, and skips from there to the
// frames written after the cut only once some have arrived. The sound goes on
// while the producer makes the new ones.
//
// A fresh cut is a cut whose new frames start a new stream at the device: the
// consumer goes on with the old frames until `prime` new ones are written,
// then its read stops short there, and it crosses over only when it asks to
// (from the device's new stream).
class AudioRingBuffer
{
public:
    // The capacity is rounded up to a power of two.
    AudioRingBuffer(qsizetype capacityFrames, int channels);

    int channels() const { return m_channels; }
    qsizetype capacity() const { return static_cast<qsizetype>(m_mask + 1); }

    // ---- Producer side ----
    // Frames the producer may write now.
    qsizetype writableFrames() const;
    // Frames written since the last flush and not yet read.
    qsizetype pendingFrames() const;
    // Writes n frames; frame i gets the position first + i * step. n must not
    // exceed writableFrames().
    void write(const float* interleaved, qsizetype n, uint32_t seek, double first, double step);
    // Marks everything written so far as stale. What follows is handed out
    // only once `prime` frames of it are written, or its end is: a sound
    // that starts from silence does not start on a trickle that runs dry.
    void flush(qsizetype prime = 0);
    // Every frame of the present sound is written.
    void markEnd();
    // Cuts the frames to be heard about `lead` frames ahead of the consumer
    // (fewer when fewer are written). Returns the source position the frames
    // written after the cut should start from: that of the first frame cut,
    // or `writtenEnd` (where the last written frame ends) when none is.
    double cut(qsizetype lead, double writtenEnd);
    // A fresh cut at the consumer's next frame; the new frames are handed out
    // once `prime` of them are written (or their end is).
    void freshCut(qsizetype prime);
    uint64_t writeIndex() const { return m_write.load(std::memory_order_relaxed); }
    // Whether the latest fresh cut's frames wait for the consumer to cross.
    bool freshWaiting() const;
    uint64_t readIndex() const { return m_read.load(std::memory_order_acquire); }

    // ---- Consumer side ----
    // Skips stale frames and frames of seeks outside [oldest, seek] (audio
    // queued before the newest plain seek must not be heard once it is asked
    // for, while a rate change's older frames may bridge), follows a cut, and
    // copies up to n frames, scaled by gain, into out. Returns the number
    // copied; *last gets the tag of the last one copied. A read for a fresh
    // stream (`crossFresh`) crosses a fresh cut whose frames are ready and
    // copies nothing at one whose frames are not; any other read stops at a
    // ready fresh cut and sets *atFresh.
    qsizetype read(float* out, qsizetype n, float gain, uint32_t oldest, uint32_t seek,
                   FrameTag* last, bool crossFresh = false, bool* atFresh = nullptr) noexcept;
    // Applies a pending flush without reading (used while paused).
    void skipStale() noexcept;

private:
    int m_channels;
    uint64_t m_mask;
    std::unique_ptr<float[]> m_samples;
    std::unique_ptr<FrameTag[]> m_tags;
    alignas(64) std::atomic<uint64_t> m_write{0};
    alignas(64) std::atomic<uint64_t> m_read{0};
    alignas(64) std::atomic<uint64_t> m_flushIndex{0};
    std::atomic<uint64_t> m_primeFrames{0};
    // Where the present sound ended, plus one; 0 while it goes on.
    std::atomic<uint64_t> m_endIndex{0};
    // The latest cut: frames in [from, to) are skipped once frames from `to`
    // on exist. Stored from first, to last.
    std::atomic<uint64_t> m_cutFrom{0};
    std::atomic<uint64_t> m_cutTo{0};
    std::atomic<uint64_t> m_cutPrime{0}; // more than 0 for a fresh cut
    // Fresh cuts made, and the last one the consumer crossed: until it has,
    // no other read goes past the cut into the fresh frames.
    std::atomic<uint64_t> m_freshCuts{0};
    std::atomic<uint64_t> m_freshCrossed{0}; // written by the consumer
};
