// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/AudioPlayer.h"
#include "audio/NullAudioOutput.h"

#include <QString>
#include <memory>
#include <vector>

// Helpers for driving an AudioPlayer through a manually clocked null output.
namespace PlayerTest {

// The whole file decoded from the start, interleaved in the player's output
// channels (at most two), each buffer where its time stamp places it.
std::vector<float> straightDecode(const QString& path, int* channels = nullptr,
                                  double* sampleRate = nullptr);

struct ManualPlayer
{
    std::unique_ptr<AudioPlayer> player;
    NullAudioOutput* output = nullptr; // owned by the player

    // Pulls until `frames` frames of sound were handed out (the silence the
    // output gets while the decode thread catches up is not part of the
    // stream) and returns them. Fails the test on a stall.
    std::vector<float> take(qsizetype frames);
};

ManualPlayer openManual(const QString& path, double latency = 0.0);

// Zero-crossing frequency of a mono signal over [from, to) frames.
double frequency(const std::vector<float>& mono, qsizetype from, qsizetype to, double sampleRate);

// First frame at or after `from` whose magnitude exceeds `level`; -1 if none.
qsizetype onset(const std::vector<float>& mono, qsizetype from, float level);

} // namespace PlayerTest
