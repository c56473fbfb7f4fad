// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

// A timer made by a Clock. It stays scheduled until it fires (one-shot) or is
// invalidated; dropping the last reference also invalidates it.
class Timer
{
public:
    virtual ~Timer() = default;
    virtual void invalidate() = 0;
    virtual bool isValid() const = 0;
    virtual double interval() const = 0;
};

// Where timers come from. The engine takes one so that tests can run its
// timers on a virtual clock; the application uses Clock::system(), whose
// timers are precise QTimers on the calling thread's event loop.
class Clock
{
public:
    virtual ~Clock() = default;
    // Calls `action` after `seconds`, and every `seconds` after that when
    // `repeats`, until the timer is invalidated.
    virtual std::shared_ptr<Timer> scheduledTimer(double seconds, bool repeats,
                                                  std::function<void()> action) = 0;

    static Clock& system();
};
