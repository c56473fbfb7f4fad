// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/AudioPlayer.h"

#include "audio/AudioDecoder.h"
#include "audio/NullAudioOutput.h"
#include "common/Log.h"
#include "common/ThreadHandOff.h"

#include <QDebug>
#include <QMetaObject>
#include <QPointer>
#include <algorithm>

namespace {
// About 3 s at 44.1 kHz; the decode thread fills at most 0.5 s of it (a
// stall of the decode thread that long goes unheard), so that after a seek or
// a rate change there is always room for the new audio at once, also after a
// held key's rate changes have each left the start of a fresh stream behind.
constexpr qsizetype kRingFrames = 131072;
// A rate change while playing is heard in a fresh device stream: the new
// rate's first frames come from where the ear will be when the old stream is
// let go, about this long after the change (the new frames made, the old
// stream's next read, and the new stream's first).
constexpr double kFreshLead = 0.05;
} // namespace

std::unique_ptr<AudioPlayer>
AudioPlayer::create(const QString& path, std::unique_ptr<AudioOutput> output, QString* error)
{
    auto decoder = std::make_unique<AudioDecoder>();
    // The producer converts each frame straight to the device's layout.
    decoder->setConformFrames(false);
    if (!decoder->open(path) || !decoder->openCodec()) {
        if (error)
            *error = decoder->errorString();
        return nullptr;
    }
    if (!output)
        output = AudioOutput::createDefault();
    return std::unique_ptr<AudioPlayer>(
        new AudioPlayer(path, std::move(decoder), std::move(output)));
}

AudioPlayer::AudioPlayer(const QString& path, std::unique_ptr<AudioDecoder> decoder,
                         std::unique_ptr<AudioOutput> output)
    : m_path(path),
      m_duration(decoder->info().duration), m_format{static_cast<int>(decoder->info().sampleRate),
                                                     std::min(decoder->info().channels, 2)},
      m_decoder(std::move(decoder)), m_output(std::move(output)),
      m_ring(kRingFrames, m_format.channels)
{
    // The decode thread's reports hop to this object's thread; they are
    // dropped if the player is gone by then.
    QPointer<AudioPlayer> self(this);
    PlaybackProducer::Events events;
    events.reachedEnd = [self](uint32_t seek) {
        postHandedOver(self, [self, seek] {
            if (self)
                self->onReachedEnd(seek);
        });
    };
    events.decodeError = [self](const QString& message) {
        postHandedOver(self, [self, message] {
            if (self)
                emit self->decodeErrorDidOccur(message);
        });
    };
    m_producer =
        std::make_unique<PlaybackProducer>(*m_decoder, m_ring, m_handed, std::move(events));
    setCurrentTime(0.0);
}

AudioPlayer::~AudioPlayer()
{
    // The device first, so that nothing reads the ring while it goes away.
    m_output->stop();
    m_producer.reset();
}

bool AudioPlayer::prepareToPlay()
{
    if (m_prepared)
        return true;
    m_deviceFrames = 0;
    if (!m_output->start(m_format, this)) {
        qCInfo(lcAudio, "Audio output unavailable (%s); playback continues silently",
               qPrintable(m_output->errorString()));
        m_output = std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime);
        m_output->start(m_format, this);
    }
    m_prepared = true;
    return true;
}

bool AudioPlayer::play()
{
    prepareToPlay();
    if (m_spanEnd >= 0.0 && !m_spanFresh) {
        // Plain play after a span: on from where it stands, without the bound.
        const double from = currentTime();
        m_spanEnd = -1.0;
        setCurrentTime(from);
    }
    m_spanFresh = false;
    m_playing = true;
    m_audible.store(true, std::memory_order_release);
    m_producer->setPlaying(true);
    return true;
}

void AudioPlayer::pause()
{
    if (m_playing)
        m_floor = currentTime();
    m_playing = false;
    m_audible.store(false, std::memory_order_release);
    m_producer->setPlaying(false);
}

void AudioPlayer::pauseNow()
{
    const bool wasPlaying = m_playing;
    pause();
    if (!wasPlaying || !m_prepared)
        return;
    m_output->discardPending();
    // Without a span, play() goes on from what the ring holds next, which is
    // past the sound just dropped; a move to the ear's place brings it back.
    // With one, play() makes that move itself.
    if (m_spanEnd < 0.0)
        setCurrentTime(m_floor);
}

void AudioPlayer::stop()
{
    pause();
}

double AudioPlayer::currentTime() const
{
    double through = 0.0;
    const FrameTag handed = m_handed.load(&through);
    // The frames of a rate change's predecessors still count: the sound goes
    // on through them.
    if (!m_playing || !handsLatestSound(handed))
        return m_floor;
    // The device hears the frames it took in order: what it has yet to hear
    // of those up to the last one handed is still ahead of the ear.
    const double ahead = std::max(through - m_output->framesHeard(), 0.0);
    double heard = handed.position - ahead * static_cast<double>(handed.step);
    // Until the fresh stream is heard, the ear goes no further than where it
    // starts: the old stream it leaves is dropped short of its end.
    if (m_freshSeek != 0 && handed.seek < m_freshSeek)
        heard = std::min(heard, m_freshFrom);
    return std::max(heard, m_floor);
}

void AudioPlayer::setCurrentTime(double seconds)
{
    setCurrentTime(seconds, -1.0);
    m_spanFresh = false;
}

void AudioPlayer::setCurrentTime(double seconds, double end)
{
    const double target = std::clamp(seconds, 0.0, std::max(m_duration, 0.0));
    m_floor = target;
    m_target = target;
    m_spanEnd = end >= 0.0 ? std::max(end, target) : -1.0;
    m_spanFresh = m_spanEnd >= 0.0;
    m_freshSeek = 0;
    ++m_seekNumber;
    m_oldestSeek.store(m_seekNumber, std::memory_order_relaxed);
    m_wantedSeek.store(m_seekNumber, std::memory_order_release);
    m_producer->requestSeek(target, m_seekNumber, m_spanEnd);
}

double AudioPlayer::secondsUntilHanded(double sourceSeconds) const
{
    const FrameTag handed = m_handed.load();
    if (!m_playing || !handsLatestSound(handed) || m_format.sampleRate <= 0)
        return 0.0;
    // What is left of a rate change's predecessor is short; the new rate
    // times the rest.
    const double rate = static_cast<double>(m_appliedRate);
    const double left = sourceSeconds - handed.position - 1.0 / m_format.sampleRate;
    return std::max(left / rate, 0.0);
}

bool AudioPlayer::handsLatestSound() const
{
    return handsLatestSound(m_handed.load());
}

bool AudioPlayer::handsLatestSound(const FrameTag& handed) const
{
    return handed.seek >= m_oldestSeek.load(std::memory_order_relaxed);
}

void AudioPlayer::setEnableRate(bool enable)
{
    m_enableRate = enable;
    applyRate();
}

void AudioPlayer::setRate(float rate)
{
    m_rate = std::clamp(rate, kMinRate, kMaxRate);
    applyRate();
}

void AudioPlayer::applyRate()
{
    const float rate = m_enableRate ? m_rate : 1.0f;
    if (rate == m_appliedRate)
        return;
    // The change gets a seek number of its own. While playing, the sound goes
    // on: the old rate plays on while the decode thread makes the new one.
    // Paused, it starts from the frame the device took last, or from where
    // the last move asked for if it took none.
    m_floor = currentTime();
    const double oldRate = m_appliedRate;
    ++m_seekNumber;
    m_appliedRate = rate;
    m_producer->requestRate(rate);
    // Heard at once: the new rate starts from where the ear will be, in a new
    // device stream, and what the device holds of the old one is dropped.
    // Near the end of a span the old rate finishes it instead, and an output
    // without fresh streams goes on from where its old frames are cut.
    const double from = m_floor + kFreshLead * oldRate;
    if (m_playing && m_output->startsFreshStreams() && (m_spanEnd < 0.0 || from < m_spanEnd) &&
        from < m_duration) {
        m_freshSeek = m_seekNumber;
        m_freshFrom = from;
        m_wantedSeek.store(m_seekNumber, std::memory_order_release);
        m_producer->requestFresh(from, m_seekNumber, m_spanEnd);
        return;
    }
    m_freshSeek = 0;
    if (m_playing) {
        m_wantedSeek.store(m_seekNumber, std::memory_order_release);
        m_producer->requestContinue(m_seekNumber, m_spanEnd);
        return;
    }
    const FrameTag handed = m_handed.load();
    const bool tookSome = handsLatestSound(handed);
    m_oldestSeek.store(m_seekNumber, std::memory_order_relaxed);
    m_wantedSeek.store(m_seekNumber, std::memory_order_release);
    if (tookSome && m_format.sampleRate > 0)
        m_target = handed.position + 1.0 / m_format.sampleRate;
    m_producer->requestSeek(m_target, m_seekNumber, m_spanEnd);
}

void AudioPlayer::setVolume(float volume)
{
    m_volume.store(std::clamp(volume, 0.0f, 1.0f), std::memory_order_relaxed);
}

void AudioPlayer::onReachedEnd(uint32_t seek)
{
    if (seek != m_seekNumber || !m_playing)
        return;
    pause();
    setCurrentTime(0.0);
    emit didFinishPlaying(true);
}

bool AudioPlayer::holdsForFreshStream() const noexcept
{
    return m_holding.load(std::memory_order_acquire);
}

void AudioPlayer::resumeInFreshStream() noexcept
{
    m_resumed.store(true, std::memory_order_release);
}

qsizetype AudioPlayer::render(float* out, qsizetype frames) noexcept
{
    const auto channels = static_cast<size_t>(m_format.channels);
    qsizetype copied = 0;
    if (m_audible.load(std::memory_order_acquire)) {
        FrameTag last;
        const uint32_t wanted = m_wantedSeek.load(std::memory_order_acquire);
        // At a fresh cut nothing more goes to the old stream: silence until
        // the new one asks.
        const bool resumed = m_resumed.exchange(false, std::memory_order_acq_rel);
        bool atFresh = false;
        if (!m_holding.load(std::memory_order_relaxed) || resumed) {
            copied = m_ring.read(out, frames, m_volume.load(std::memory_order_relaxed),
                                 m_oldestSeek.load(std::memory_order_relaxed), wanted, &last,
                                 resumed, &atFresh);
            m_holding.store(atFresh, std::memory_order_release);
        }
        if (copied > 0)
            m_handed.store(last, double(m_deviceFrames + copied));
        // A gap inside the sound: the ring ran dry after the first frame and
        // more of the same sound came later. The end of a span or of the file
        // also reads short, but nothing follows it.
        if (copied > 0 && m_ranDry && last.seek == m_handedSeek)
            m_shortReads.fetch_add(1, std::memory_order_relaxed);
        if (copied > 0)
            m_handedSeek = last.seek;
        m_ranDry = copied < frames && m_handedSeek == wanted;
    } else {
        // A switch to a fresh stream under way is given up; play() comes
        // back to the fresh cut and starts it again.
        m_resumed.store(false, std::memory_order_relaxed);
        m_holding.store(false, std::memory_order_relaxed);
        m_ring.skipStale();
    }
    std::fill(out + static_cast<size_t>(copied) * channels,
              out + static_cast<size_t>(frames) * channels, 0.0f);
    m_deviceFrames += static_cast<uint64_t>(frames);
    return copied;
}
