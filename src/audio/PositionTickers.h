// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

class Clock;
class Timer;

// The position tickers that every play() adds. Each is a Timer of its own,
// which can be invalidated alone, but all that live share one repeating clock
// timer: a tick reads the position once and lets the owner post one
// notification per live ticker. A thousand tickers then cost one timer, not a
// thousand.
class PositionTickers
{
public:
    // `tick` gets the number of live tickers (at least 1).
    PositionTickers(double interval, std::function<void(int live)> tick);
    ~PositionTickers();
    PositionTickers(const PositionTickers&) = delete;
    PositionTickers& operator=(const PositionTickers&) = delete;

    // A new live ticker; the shared timer starts with the first.
    std::shared_ptr<Timer> add(Clock& clock);
    int live() const;

private:
    struct Shared;
    class Ticker;
    std::shared_ptr<Shared> m_shared;
};
