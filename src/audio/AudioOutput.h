// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>
#include <memory>

// What the player hands out: interleaved 32-bit float frames.
struct OutputFormat
{
    int sampleRate = 44100;
    int channels = 2;
};

// The side of the player that the device pulls from. render() runs on the
// output's own thread and must not block, lock or allocate. It always fills
// all `frames` frames and returns how many of them are sound; the rest (at
// the end) is silence.
class AudioRenderSource
{
public:
    virtual ~AudioRenderSource() = default;
    virtual qsizetype render(float* out, qsizetype frames) noexcept = 0;
    // True once render() has come to sound that should not wait behind what
    // the device already holds (a new rate): it then renders silence until
    // resumeInFreshStream(). An output that starts fresh streams drops what
    // it holds and asks for the new sound in a new stream.
    virtual bool holdsForFreshStream() const noexcept { return false; }
    // The next render() is for the new stream. When it gives no sound (the
    // newest sound is not ready yet, or playing stopped), the switch is
    // given up: the old stream goes on, and render() holds again later.
    virtual void resumeInFreshStream() noexcept {}
};

// A sound device. Once started it keeps pulling frames from the source until
// stopped (silence while the player is paused), so that starting a segment
// never waits for a device to open.
class AudioOutput
{
public:
    virtual ~AudioOutput() = default;

    // False when the device cannot be opened; errorString() says why.
    virtual bool start(const OutputFormat& format, AudioRenderSource* source) = 0;
    virtual void stop() = 0;
    // How many of the frames taken from the source since start() (sound and
    // silence alike) have been heard by now, fractional. Any thread.
    virtual double framesHeard() const = 0;
    // Drops what the device was given and has not played yet, so that a pause
    // is heard at once; the frames dropped count as heard from then on.
    virtual void discardPending() {}
    // Whether it answers a source's hold for a fresh stream.
    virtual bool startsFreshStreams() const { return false; }
    // True when nothing is actually heard (no device).
    virtual bool isSilent() const = 0;
    virtual QString description() const = 0;
    virtual QString errorString() const = 0;

    // The default device, or a silent real-time output when the machine has
    // none (said once in the log).
    static std::unique_ptr<AudioOutput> createDefault();
};
