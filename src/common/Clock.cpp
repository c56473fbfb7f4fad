// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Clock.h"

#include <QTimer>
#include <cmath>

namespace {

class QtTimer : public Timer
{
public:
    QtTimer(double seconds, bool repeats, std::function<void()> action)
        : m_interval(seconds), m_timer(new QTimer)
    {
        m_timer->setTimerType(Qt::PreciseTimer);
        m_timer->setSingleShot(!repeats);
        m_timer->setInterval(
            std::chrono::milliseconds(std::max(0L, std::lround(seconds * 1000.0))));
        QObject::connect(m_timer, &QTimer::timeout, m_timer,
                         [this, repeats, action = std::move(action)] {
                             if (!repeats)
                                 m_valid = false;
                             action(); // may invalidate or release this timer
                         });
        m_timer->start();
    }
    ~QtTimer() override
    {
        // The timer may be inside its own timeout right now.
        m_timer->stop();
        m_timer->deleteLater();
    }
    void invalidate() override
    {
        m_valid = false;
        m_timer->stop();
    }
    bool isValid() const override { return m_valid; }
    double interval() const override { return m_interval; }

private:
    double m_interval;
    bool m_valid = true;
    QTimer* m_timer;
};

class SystemClock : public Clock
{
public:
    std::shared_ptr<Timer> scheduledTimer(double seconds, bool repeats,
                                          std::function<void()> action) override
    {
        return std::make_shared<QtTimer>(seconds, repeats, std::move(action));
    }
};

} // namespace

Clock& Clock::system()
{
    static SystemClock clock;
    return clock;
}
