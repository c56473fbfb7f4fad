// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/PositionTickers.h"

#include "common/Clock.h"

struct PositionTickers::Shared
{
    double interval;
    std::function<void(int)> tick;
    int live = 0;
    std::shared_ptr<Timer> timer;

    void release()
    {
        if (--live == 0 && timer) {
            timer->invalidate();
            timer.reset();
        }
    }
};

// One ticker: only a share in the count. Invalidating it, or dropping it,
// takes it out.
class PositionTickers::Ticker : public Timer
{
public:
    explicit Ticker(std::weak_ptr<Shared> shared) : m_shared(std::move(shared)) {}
    ~Ticker() override { invalidate(); }
    void invalidate() override
    {
        if (!m_valid)
            return;
        m_valid = false;
        if (auto shared = m_shared.lock())
            shared->release();
    }
    bool isValid() const override { return m_valid && !m_shared.expired(); }
    double interval() const override
    {
        const auto shared = m_shared.lock();
        return shared ? shared->interval : 0.0;
    }

private:
    std::weak_ptr<Shared> m_shared;
    bool m_valid = true;
};

PositionTickers::PositionTickers(double interval, std::function<void(int live)> tick)
    : m_shared(std::make_shared<Shared>())
{
    m_shared->interval = interval;
    m_shared->tick = std::move(tick);
}

PositionTickers::~PositionTickers()
{
    if (m_shared->timer)
        m_shared->timer->invalidate();
}

std::shared_ptr<Timer> PositionTickers::add(Clock& clock)
{
    if (m_shared->live++ == 0) {
        std::weak_ptr<Shared> weak = m_shared;
        m_shared->timer = clock.scheduledTimer(m_shared->interval, true, [weak] {
            if (auto shared = weak.lock(); shared && shared->live > 0)
                shared->tick(shared->live);
        });
    }
    return std::make_shared<Ticker>(m_shared);
}

int PositionTickers::live() const
{
    return m_shared->live;
}
