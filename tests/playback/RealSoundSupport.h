// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What the real-sound tests share: the process's one PulseAudio server, a
// recording of what the player sends to it, and finding a stretch of known
// audio in that recording.

#include "PulseServer.h"

#include <QString>
#include <QtGlobal>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

class AudioPlayer;

namespace RealSoundSupport {

constexpr double kCaptureRate = 48000.0;
constexpr double kHeardTolerance = 0.015;
// Takes of one measurement before a fault is taken to be the engine's.
constexpr int kAttempts = 6;

// The process's one server (Qt's sound system keeps to the server it first
// found), started at first use and stopped when the tests are done. Null,
// with *whyNot set, when none can run here.
PulseServer* sharedServer(QString* whyNot);

struct Match
{
    qsizetype lag = -1;
    double coefficient = 0.0; // normalised correlation over the whole reference
};

// A fixture on the shared server: the test is skipped where none can run,
// except on CI, where that is a failure.
template <class Base = ::testing::Test>
class WithServer : public Base
{
protected:
    void SetUp() override
    {
        QString whyNot;
        pulse = sharedServer(&whyNot);
        if (!pulse) {
            if (qEnvironmentVariable("CI") == QLatin1String("true"))
                FAIL() << "CI must run the real-sound test: " << whyNot.toStdString();
            GTEST_SKIP() << whyNot.toStdString();
        }
    }
    // Whether SetUp() found a server: a derived SetUp goes on only then.
    bool serverReady() const { return pulse && !this->HasFatalFailure(); }

    PulseServer* pulse = nullptr;
};

// What the player hands out of `path` (a mono file at the capture rate) from
// `from` for `length` source seconds at this rate: `decoded` (the whole file)
// itself at 1.0, else the player's own stretched output on a null device.
std::vector<float> playedSpan(const QString& path, const std::vector<float>& decoded, double from,
                              double length, float rate);

// Where `reference` best lines up inside `signal`.
Match locate(const std::vector<float>& signal, const std::vector<float>& reference);

void runEventsFor(int ms);

// Stretches of sound in a recording, split where digital silence lasts longer
// than 1 ms (the played files never fall silent: they have a noise floor).
struct Sound
{
    double from = 0, to = 0;
};
std::vector<Sound> soundRuns(const std::vector<float>& capture);

// One recording, and what it shows.
struct Take
{
    QString error;
    std::vector<float> capture;
    int starved = 0;       // times the device found the player's ring empty mid-sound
    int sinkUnderruns = 0; // times the sink found the device's stream empty
    double lagSeconds = 0, coefficient = 0, firstSound = 0, lastSound = 0, heard = 0;

    void measure(const std::vector<float>& reference, double expected);
    bool clean() const;
    // The machine, not the player, broke the sound: the player's ring ran dry
    // (its decode thread was not scheduled in time), or the stream feeding
    // the sink did (Qt's sound thread was not), and the sink played silence
    // in the middle. Such a take says nothing about the player.
    bool disturbed() const { return starved > 0 || sinkUnderruns > 0; }

private:
    double m_expected = 0;
};

// Records the player while `play` starts it, until `over` says so (or a
// deadline passes), then while the device plays out what it holds.
Take record(PulseServer& pulse, AudioPlayer& player, double seconds,
            const std::function<void()>& play, const std::function<bool()>& over);

} // namespace RealSoundSupport
