// SPDX-License-Identifier: GPL-3.0-or-later
#include "JournalSyncer.h"

#include <cerrno>
#include <unistd.h>

JournalSyncer::JournalSyncer() : m_thread([this] { run(); }) {}

JournalSyncer::~JournalSyncer()
{
    {
        std::lock_guard lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void JournalSyncer::request(int fd)
{
    {
        std::lock_guard lock(m_mutex);
        m_pending = fd;
    }
    m_wake.notify_one();
}

void JournalSyncer::waitIdle()
{
    std::unique_lock lock(m_mutex);
    m_idle.wait(lock, [this] { return m_pending < 0 && !m_running; });
}

int JournalSyncer::takeError()
{
    std::lock_guard lock(m_mutex);
    const int error = m_error;
    m_error = 0;
    return error;
}

void JournalSyncer::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_stop || m_pending >= 0; });
        if (m_pending < 0)
            return; // stopping with nothing left to do
        const int fd = m_pending;
        m_pending = -1;
        m_running = true;
        lock.unlock();
        int result;
        do {
            result = ::fdatasync(fd);
        } while (result < 0 && errno == EINTR);
        const int error = result < 0 ? errno : 0;
        lock.lock();
        m_running = false;
        if (error != 0)
            m_error = error;
        if (m_pending < 0)
            m_idle.notify_all();
    }
}
