// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/AudioOutput.h"

#include <atomic>
#include <thread>
#include <vector>

// An output without a device. In RealTime clocking a thread pulls frames at
// the pace a device would and discards them, so playback runs its normal
// course on a machine without sound. In Manual clocking nothing happens until
// the owner calls pull(), which plays the device's part on the calling thread:
// tests and benchmarks drive playback frame by frame and see exactly what
// would have been heard.
class NullAudioOutput : public AudioOutput
{
public:
    enum class Clocking
    {
        RealTime,
        Manual
    };

    explicit NullAudioOutput(Clocking clocking, double latencySeconds = 0.1);
    ~NullAudioOutput() override;

    bool start(const OutputFormat& format, AudioRenderSource* source) override;
    void stop() override;
    // What it has pulled, less its latency.
    double framesHeard() const override;
    // Its latency is skipped: what it pulled counts as heard.
    void discardPending() override;
    bool isSilent() const override { return true; }
    QString description() const override;
    QString errorString() const override { return {}; }

    // Manual clocking: asks the source for `frames` frames into `out`
    // (resized to hold them, interleaved) and returns how many are sound; the
    // rest is silence. Nothing is pulled when the output is not started.
    qsizetype pull(qsizetype frames, std::vector<float>& out);
    const OutputFormat& format() const { return m_format; }
    bool isStarted() const { return m_started.load(); }

private:
    void run();

    Clocking m_clocking;
    double m_latency;
    OutputFormat m_format;
    AudioRenderSource* m_source = nullptr;
    std::atomic<bool> m_started{false};
    std::atomic<bool> m_quit{false};
    std::atomic<qint64> m_pulled{0};
    std::atomic<qint64> m_discardedTo{0}; // heard up to here at least
    std::thread m_thread;
};
