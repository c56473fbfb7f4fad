// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common/Clock.h"

#include <memory>
#include <vector>

// A clock that only moves when the test says so: advance() fires every timer
// that falls due, in time order, on the calling thread.
class VirtualClock : public Clock
{
public:
    std::shared_ptr<Timer> scheduledTimer(double seconds, bool repeats,
                                          std::function<void()> action) override;
    double now() const { return m_now; }
    void advance(double seconds);
    // Timers still scheduled.
    int liveTimers() const;

private:
    struct VirtualTimer;
    double m_now = 0.0;
    unsigned long m_created = 0;
    std::vector<std::weak_ptr<VirtualTimer>> m_timers;
};
