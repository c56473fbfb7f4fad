// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/PlaybackProducer.h"

#include "audio/AudioDecoder.h"
#include "audio/FrameConverter.h"
#include "audio/HandedPosition.h"
#include "audio/ThreadPriority.h"
#include "audio/TimeStretcher.h"

#include <algorithm>
#include <chrono>
#include <cmath>

extern "C" {
#include <libavutil/frame.h>
#include <libavutil/samplefmt.h>
}

namespace {

constexpr qsizetype kBlock = 1024;   // frames per stretcher call
constexpr qsizetype kMinChunk = 256; // smallest write worth waking for
// How far ahead of the device a rate change cuts the sound: about what a new
// stream takes to make its first frames (a stretcher's start, a seek), so
// that the old rate plays on just long enough to hide it. When they take
// longer, the old rate plays on until they are there.
constexpr double kCutLead = 0.025;
// How much of a sound that starts from silence is made before the device
// gets any: under load the first frames otherwise arrive faster than the
// ones that follow them.
constexpr double kPrime = 0.1;
// How much of a fresh stream's sound is made before the old stream is let
// go: a new device stream takes a buffer's worth (0.2 s) at once, and a gap
// inside it would be heard.
constexpr double kFreshPrime = 0.25;
// A buffer dated this much before the frames counted so far means the file's
// time stamps run back; smaller differences are codecs' rounding.
constexpr double kRunBack = 0.1;

int64_t steadyNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace

PlaybackProducer::PlaybackProducer(AudioDecoder& decoder, AudioRingBuffer& ring,
                                   const HandedPosition& handed, Events events)
    : m_decoder(decoder), m_ring(ring), m_handed(handed), m_events(std::move(events)),
      m_sampleRate(decoder.info().sampleRate), m_channels(ring.channels()),
      m_streamStart(decoder.info().startTime),
      m_runIn(AudioDecoder::runInSeconds(decoder.info().formatID)),
      m_fillTarget(
          std::min<qsizetype>(ring.capacity() / 2, static_cast<qsizetype>(0.5 * m_sampleRate))),
      m_stretcher(std::make_unique<TimeStretcher>(static_cast<int>(m_sampleRate), m_channels,
                                                  static_cast<int>(kBlock))),
      m_converter(std::make_unique<FrameConverter>(m_channels, AV_SAMPLE_FMT_FLT,
                                                   static_cast<int>(m_sampleRate),
                                                   FrameConverter::Mix::WithinFullScale)),
      m_stretched(static_cast<size_t>(kBlock * m_channels))
{
    m_thread = std::thread([this] { run(); });
}

PlaybackProducer::~PlaybackProducer()
{
    m_quit.store(true);
    // The thread may be indexing a long file, a scan of all of it.
    m_decoder.interrupt();
    wake();
    m_thread.join();
}

void PlaybackProducer::requestSeek(double seconds, uint32_t seek, double end)
{
    m_seekTarget.store(seconds, std::memory_order_relaxed);
    m_seekEnd.store(end, std::memory_order_relaxed);
    m_seekOnFromSound.store(false, std::memory_order_relaxed);
    m_seekFresh.store(false, std::memory_order_relaxed);
    m_plainSeek.store(seek, std::memory_order_relaxed);
    m_seekRequest.store((uint64_t(seek) << 1) | 1u, std::memory_order_release);
    wake();
}

void PlaybackProducer::requestContinue(uint32_t seek, double end)
{
    m_seekEnd.store(end, std::memory_order_relaxed);
    m_seekOnFromSound.store(true, std::memory_order_relaxed);
    m_seekFresh.store(false, std::memory_order_relaxed);
    m_seekRequest.store((uint64_t(seek) << 1) | 1u, std::memory_order_release);
    wake();
}

void PlaybackProducer::requestFresh(double seconds, uint32_t seek, double end)
{
    m_seekTarget.store(seconds, std::memory_order_relaxed);
    m_seekEnd.store(end, std::memory_order_relaxed);
    m_seekOnFromSound.store(false, std::memory_order_relaxed);
    m_seekFresh.store(true, std::memory_order_relaxed);
    m_seekRequest.store((uint64_t(seek) << 1) | 1u, std::memory_order_release);
    wake();
}

void PlaybackProducer::requestRate(float rate)
{
    m_rateRequest.store(rate, std::memory_order_release);
    wake();
}

void PlaybackProducer::setPlaying(bool playing)
{
    m_playing.store(playing, std::memory_order_release);
    wake();
}

PlaybackProducer::SeekTiming PlaybackProducer::lastSeekTiming() const
{
    // The time is stored before the seek number, so a matching number
    // guarantees the time belongs to it.
    const uint32_t seek = m_timedSeek.load(std::memory_order_acquire);
    return {seek, m_timedNs.load(std::memory_order_relaxed),
            m_timedFrom.load(std::memory_order_relaxed)};
}

void PlaybackProducer::wake()
{
    {
        std::lock_guard lock(m_wakeMutex);
        m_woken = true;
    }
    m_wakeCondition.notify_one();
}

void PlaybackProducer::run()
{
    ThreadPriority::raiseForSound();
    while (!m_quit.load(std::memory_order_acquire)) {
        readMailbox();
        if (produce())
            continue;
        if (!m_indexed && m_positioned && !m_inputDone && !m_finished) {
            buildIndex();
            continue;
        }
        const auto period = m_playing.load(std::memory_order_relaxed)
                                ? std::chrono::milliseconds(4)
                                : std::chrono::milliseconds(40);
        std::unique_lock lock(m_wakeMutex);
        m_wakeCondition.wait_for(lock, period, [this] { return m_woken; });
        m_woken = false;
    }
}

void PlaybackProducer::buildIndex()
{
    // A file without a seek table (MP3, ADTS AAC) is indexed by reading its
    // packets up to the point sought, which for a long file takes tens of
    // milliseconds. Done once for the whole file, the first time the ring is
    // full, every later seek is fast. Decoding then resumes exactly where it
    // stood, the way a seek does.
    m_indexed = true;
    const double duration = m_decoder.info().duration;
    if (duration <= 0.0)
        return;
    const int64_t resume = m_nextFrame;
    const double from = std::max(double(resume) / m_sampleRate - m_runIn, 0.0);
    m_decoder.seek(m_streamStart + duration);
    if (!m_decoder.seek(m_streamStart + from)) {
        m_positioned = false;
        return;
    }
    m_dropUntil = resume;
    m_nextFrame = std::llround(from * m_sampleRate);
    m_needTimestamp = true;
}

void PlaybackProducer::readMailbox()
{
    // A rate change comes with a seek of its own: the rate is taken with the
    // request that follows it, never in the middle of a stream.
    const uint64_t request = m_seekRequest.load(std::memory_order_acquire);
    if (request != m_seenRequest) {
        m_seenRequest = request;
        m_rate = m_rateRequest.load(std::memory_order_acquire);
        // A seek replaced by a later request before it was taken still moves
        // the sound: the later one then starts from the seek's target.
        Bridge bridge = Bridge::None;
        if (m_plainSeek.load(std::memory_order_relaxed) <= m_seek) {
            if (m_seekOnFromSound.load(std::memory_order_relaxed))
                bridge = Bridge::OnFromSound;
            else if (m_seekFresh.load(std::memory_order_relaxed))
                bridge = Bridge::Fresh;
        }
        seekTo(m_seekTarget.load(std::memory_order_relaxed), static_cast<uint32_t>(request >> 1),
               m_seekEnd.load(std::memory_order_relaxed), bridge);
    }
}

void PlaybackProducer::seekTo(double seconds, uint32_t seek, double end, Bridge bridge)
{
    if (bridge == Bridge::OnFromSound) {
        seconds = m_ring.cut(static_cast<qsizetype>(kCutLead * m_sampleRate), m_writtenEnd);
    } else if (bridge == Bridge::Fresh) {
        m_ring.freshCut(std::min(m_fillTarget, static_cast<qsizetype>(kFreshPrime * m_sampleRate)));
        m_writtenEnd = std::max(seconds, 0.0);
    } else {
        m_ring.flush(std::min(m_fillTarget, static_cast<qsizetype>(kPrime * m_sampleRate)));
        m_writtenEnd = std::max(seconds, 0.0);
    }
    m_seek = seek;
    m_target = std::max(seconds, 0.0);
    m_spanEnd = end;
    m_spanEnded = false;
    m_dropUntil = std::llround(m_target * m_sampleRate);
    m_pendingFrames = m_pendingOffset = 0;
    m_inputDone = false;
    m_finished = false;
    m_endReported = false;
    m_firstWritten = false;
    m_errorReported = false;
    m_skippedSeen = m_decoder.skippedPackets();
    const double from = m_timestampsRunBack ? 0.0 : std::max(m_target - m_runIn, 0.0);
    m_nextFrame = std::llround(from * m_sampleRate);
    m_needTimestamp = !m_timestampsRunBack;
    m_converter->reset();
    if (!(m_timestampsRunBack ? m_decoder.rewind() : m_decoder.seek(m_streamStart + from))) {
        m_positioned = false;
        if (m_events.decodeError)
            m_events.decodeError(m_decoder.errorString());
        return;
    }
    if (m_rate != 1.0f) {
        m_stretcher->reset(static_cast<double>(m_rate));
        std::fill(m_stretched.begin(), m_stretched.end(), 0.0f);
        for (qsizetype pad = m_stretcher->startPad(); pad > 0; pad -= kBlock)
            m_stretcher->process(m_stretched.data(), std::min(pad, kBlock), false);
        m_dropOutput = m_stretcher->startDelay();
        m_outPosition = m_target;
    }
    m_positioned = true;
}

bool PlaybackProducer::produce()
{
    if (!m_positioned)
        return false;
    if (m_finished) {
        if (!m_endReported && !m_spanEnded && m_ring.readIndex() >= m_endIndex) {
            m_endReported = true;
            if (m_events.reachedEnd)
                m_events.reachedEnd(m_seek);
        }
        return false;
    }
    // Frames of a fresh cut not yet crossed may be overtaken by the next
    // change and never heard, yet hold their room until the device has
    // read past them: no more of them is made than the switch needs.
    const qsizetype target =
        m_ring.freshWaiting()
            ? std::min(m_fillTarget, static_cast<qsizetype>(kFreshPrime * m_sampleRate))
            : m_fillTarget;
    const qsizetype room = std::min(m_ring.writableFrames(), target - m_ring.pendingFrames());
    if (room < kMinChunk)
        return false;
    return m_rate == 1.0f ? produceDirect(room) : produceStretched(room);
}

bool PlaybackProducer::produceDirect(qsizetype room)
{
    if (m_pendingOffset == m_pendingFrames && !decodeNext()) {
        finish();
        return true;
    }
    qsizetype n = std::min(room, m_pendingFrames - m_pendingOffset);
    const int64_t at = m_pendingStart + m_pendingOffset;
    if (m_spanEnd >= 0.0) {
        const int64_t endFrame = std::llround(m_spanEnd * m_sampleRate);
        if (at + n >= endFrame) {
            n = static_cast<qsizetype>(std::max<int64_t>(endFrame - at, 0));
            writeToRing(m_pending.data() + m_pendingOffset * m_channels, n,
                        double(at) / m_sampleRate, 1.0 / m_sampleRate);
            m_pendingOffset += n;
            m_spanEnded = true;
            finish();
            return true;
        }
    }
    writeToRing(m_pending.data() + m_pendingOffset * m_channels, n, double(at) / m_sampleRate,
                1.0 / m_sampleRate);
    m_pendingOffset += n;
    return true;
}

bool PlaybackProducer::produceStretched(qsizetype room)
{
    while (!m_inputDone && m_stretcher->available() < kBlock) {
        if (m_pendingOffset == m_pendingFrames && !decodeNext()) {
            m_inputDone = true;
            m_stretcher->process(nullptr, 0, true);
            break;
        }
        const qsizetype n = std::min(kBlock, m_pendingFrames - m_pendingOffset);
        m_stretcher->process(m_pending.data() + m_pendingOffset * m_channels, n, false);
        m_pendingOffset += n;
    }
    const qsizetype available = m_stretcher->available();
    if (available <= 0) {
        if (m_inputDone)
            finish();
        return m_inputDone;
    }
    const qsizetype got = m_stretcher->retrieve(m_stretched.data(), std::min(available, room));
    const qsizetype dropped = std::min(m_dropOutput, got);
    m_dropOutput -= dropped;
    qsizetype keep = got - dropped;
    // Each output frame stands for `rate` source frames. The stretcher's own
    // output length at the end is not exact, so the end is cut by position.
    const double step = static_cast<double>(m_rate) / m_sampleRate;
    if (m_spanEnd >= 0.0 && m_outPosition + double(keep) * step > m_spanEnd) {
        const double left = std::ceil((m_spanEnd - m_outPosition) / step - 1e-9);
        keep = std::clamp<qsizetype>(static_cast<qsizetype>(std::max(left, 0.0)), 0, keep);
        writeToRing(m_stretched.data() + dropped * m_channels, keep, m_outPosition, step);
        m_spanEnded = true;
        finish();
        return true;
    }
    if (m_inputDone && m_sourceEnd >= 0) {
        const double end = double(m_sourceEnd) / m_sampleRate;
        const double left = std::ceil((end - m_outPosition) / step);
        keep = std::clamp<qsizetype>(static_cast<qsizetype>(std::max(left, 0.0)), 0, keep);
        if (keep < got - dropped) {
            writeToRing(m_stretched.data() + dropped * m_channels, keep, m_outPosition, step);
            finish();
            return true;
        }
    }
    writeToRing(m_stretched.data() + dropped * m_channels, keep, m_outPosition, step);
    m_outPosition += double(keep) * step;
    return true;
}

bool PlaybackProducer::decodeNext()
{
    for (;;) {
        const AudioDecoder::ReadResult result = m_decoder.readNext();
        if (m_decoder.skippedPackets() != m_skippedSeen) {
            m_skippedSeen = m_decoder.skippedPackets();
            if (!m_errorReported && m_events.decodeError) {
                m_errorReported = true;
                m_events.decodeError(QStringLiteral("undecodable audio data skipped"));
            }
        }
        if (result == AudioDecoder::ReadResult::EndOfStream) {
            m_sourceEnd = m_nextFrame;
            return false;
        }
        if (result == AudioDecoder::ReadResult::Error) {
            m_sourceEnd = m_nextFrame;
            if (m_events.decodeError)
                m_events.decodeError(m_decoder.errorString());
            return false;
        }
        const DecodedBuffer& buffer = m_decoder.buffer();
        // Every frame is converted from its own layout, format and rate: a
        // file joined from parts may change any of them mid-way.
        const AVFrame* converted = m_converter->convert(buffer.frame());
        if (!converted) {
            if (!m_errorReported && m_events.decodeError) {
                m_errorReported = true;
                m_events.decodeError(m_converter->errorString());
            }
            continue;
        }
        const qsizetype frames = converted->nb_samples;
        if (frames <= 0)
            continue;
        const double start = buffer.startTime();
        int64_t missing = 0;
        if (m_needTimestamp) {
            // The first buffer after a seek says where it starts; from there on
            // frames are counted. A first frame dated before the stream start
            // is the file's first frame, whose delay the codec has trimmed.
            m_needTimestamp = false;
            if (start >= 0.0)
                m_nextFrame =
                    std::max<int64_t>(std::llround((start - m_streamStart) * m_sampleRate), 0);
        } else if (!m_timestampsRunBack && start >= 0.0 &&
                   start - m_streamStart < double(m_nextFrame) / m_sampleRate - kRunBack) {
            // Parts joined without renumbering (a FLAC whose later frames
            // count from zero again): one time stamp now names two places, and
            // FFmpeg's index, which keeps the last place read for each, sends
            // a seek into the wrong part. From here on the file is not
            // indexed, and seeks count frames from its start.
            m_timestampsRunBack = true;
            m_indexed = true;
        } else if (!m_timestampsRunBack && start >= 0.0) {
            // A packet the codec could not decode still took its time: it is
            // heard as silence, as the analysis has it, so that what follows
            // plays where a seek finds it.
            missing = DecodedBuffer::framesLeftOut(
                std::llround((start - m_streamStart) * m_sampleRate), m_nextFrame, m_sampleRate);
        }
        const int64_t first = m_nextFrame;
        const qsizetype total = frames + static_cast<qsizetype>(missing);
        m_nextFrame += total;
        const qsizetype skip =
            static_cast<qsizetype>(std::clamp<int64_t>(m_dropUntil - first, 0, total));
        if (skip == total)
            continue;

        const auto* samples = reinterpret_cast<const float*>(converted->extended_data[0]);
        m_pending.clear();
        if (skip < missing)
            m_pending.assign(static_cast<size_t>((missing - skip) * m_channels), 0.0f);
        const qsizetype fromSample = std::max<qsizetype>(skip - static_cast<qsizetype>(missing), 0);
        m_pending.insert(m_pending.end(), samples + fromSample * m_channels,
                         samples + frames * m_channels);
        m_pendingStart = first + skip;
        m_pendingFrames = total - skip;
        m_pendingOffset = 0;
        return true;
    }
}

void PlaybackProducer::finish()
{
    m_finished = true;
    m_endIndex = m_ring.writeIndex();
    m_ring.markEnd();
}

void PlaybackProducer::writeToRing(const float* frames, qsizetype n, double first, double step)
{
    if (n <= 0)
        return;
    m_ring.write(frames, n, m_seek, first, step);
    m_writtenEnd = first + double(n) * step;
    if (!m_firstWritten) {
        m_firstWritten = true;
        m_timedNs.store(steadyNs(), std::memory_order_relaxed);
        m_timedFrom.store(first, std::memory_order_relaxed);
        m_timedSeek.store(m_seek, std::memory_order_release);
    }
}
