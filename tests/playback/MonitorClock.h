// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <memory>
#include <vector>

// Records the test sink's monitor inside this process (libpulse, 16-bit mono
// at 48 kHz) and tells, at any moment, which sample of that recording the
// sink is playing now, by the server's own clock: the time of the last
// sample recorded, less what the sink still holds to play. That is the
// instrument for "what is heard now", independent of the player under test.
class MonitorClock
{
public:
    // Connects to the server named by PULSE_SERVER and starts recording.
    // Null, with *whyNot set, on failure.
    static std::unique_ptr<MonitorClock> start(QString* whyNot);
    ~MonitorClock();

    // The index (in samples, fractional) into the recording of what the sink
    // plays at this instant; -1 when the server does not answer.
    double heardNow();
    // Stops recording and returns everything recorded.
    std::vector<float> stop();

private:
    struct Impl;
    explicit MonitorClock(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> d;
};
