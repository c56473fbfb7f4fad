// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/NullAudioOutput.h"

#include <algorithm>
#include <chrono>

NullAudioOutput::NullAudioOutput(Clocking clocking, double latencySeconds)
    : m_clocking(clocking), m_latency(latencySeconds)
{
}

NullAudioOutput::~NullAudioOutput()
{
    stop();
}

QString NullAudioOutput::description() const
{
    return QStringLiteral("no audio device");
}

double NullAudioOutput::framesHeard() const
{
    const double pulled = double(m_pulled.load(std::memory_order_acquire));
    const double discarded = double(m_discardedTo.load(std::memory_order_acquire));
    return std::max({pulled - m_latency * m_format.sampleRate, std::min(discarded, pulled), 0.0});
}

void NullAudioOutput::discardPending()
{
    m_discardedTo.store(m_pulled.load(std::memory_order_acquire), std::memory_order_release);
}

bool NullAudioOutput::start(const OutputFormat& format, AudioRenderSource* source)
{
    stop();
    m_pulled = 0;
    m_discardedTo = 0;
    m_format = format;
    m_source = source;
    m_started = true;
    if (m_clocking == Clocking::RealTime) {
        m_quit = false;
        m_thread = std::thread([this] { run(); });
    }
    return true;
}

void NullAudioOutput::stop()
{
    m_quit = true;
    if (m_thread.joinable())
        m_thread.join();
    m_started = false;
    m_source = nullptr;
}

qsizetype NullAudioOutput::pull(qsizetype frames, std::vector<float>& out)
{
    out.assign(static_cast<size_t>(frames * m_format.channels), 0.0f);
    if (!m_started || !m_source)
        return 0;
    const qsizetype sound = m_source->render(out.data(), frames);
    m_pulled.fetch_add(frames, std::memory_order_release);
    return sound;
}

void NullAudioOutput::run()
{
    // Pulls in 10 ms periods against the wall clock, like a device draining
    // its buffer; a late wake-up pulls what the device would have played.
    using Clock = std::chrono::steady_clock;
    const qsizetype period = std::max(1, m_format.sampleRate / 100);
    std::vector<float> block(static_cast<size_t>(period * m_format.channels));
    const auto start = Clock::now();
    qint64 pulled = 0;
    while (!m_quit.load()) {
        const double elapsed = std::chrono::duration<double>(Clock::now() - start).count();
        const auto due = static_cast<qint64>(elapsed * m_format.sampleRate);
        while (pulled + period <= due && !m_quit.load()) {
            m_source->render(block.data(), period);
            pulled += period;
            m_pulled.store(pulled, std::memory_order_release);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}
