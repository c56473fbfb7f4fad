// SPDX-License-Identifier: GPL-3.0-or-later
#include "VirtualClock.h"

#include <algorithm>

struct VirtualClock::VirtualTimer : Timer
{
    double due = 0.0;
    double every = 0.0;
    bool repeats = false;
    bool valid = true;
    unsigned long order = 0;
    std::function<void()> action;

    void invalidate() override { valid = false; }
    bool isValid() const override { return valid; }
    double interval() const override { return every; }
};

std::shared_ptr<Timer> VirtualClock::scheduledTimer(double seconds, bool repeats,
                                                    std::function<void()> action)
{
    auto timer = std::make_shared<VirtualTimer>();
    timer->every = std::max(seconds, 0.0);
    timer->due = m_now + timer->every;
    timer->repeats = repeats;
    timer->order = m_created++;
    timer->action = std::move(action);
    m_timers.push_back(timer);
    return timer;
}

void VirtualClock::advance(double seconds)
{
    const double until = m_now + seconds;
    for (;;) {
        std::shared_ptr<VirtualTimer> next;
        for (const auto& weak : m_timers) {
            auto t = weak.lock();
            if (!t || !t->valid || t->due > until + 1e-12)
                continue;
            if (!next || t->due < next->due || (t->due == next->due && t->order < next->order))
                next = t;
        }
        if (!next)
            break;
        m_now = std::max(m_now, next->due);
        if (next->repeats)
            next->due += std::max(next->every, 1e-9);
        else
            next->valid = false;
        auto action = next->action; // the action may release the timer
        action();
        std::erase_if(m_timers, [](const auto& w) {
            const auto t = w.lock();
            return !t || !t->valid;
        });
    }
    m_now = until;
}

int VirtualClock::liveTimers() const
{
    return int(std::count_if(m_timers.begin(), m_timers.end(), [](const auto& w) {
        auto t = w.lock();
        return t && t->valid;
    }));
}
