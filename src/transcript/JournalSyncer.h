// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

// Runs a journal's fdatasync on a thread of its own, so that a sync of a few
// milliseconds never lands on a key press. Requests made while one runs merge
// into one more. Errors wait for the owner's thread to collect them.
class JournalSyncer
{
public:
    JournalSyncer();
    // Finishes what was requested.
    ~JournalSyncer();
    JournalSyncer(const JournalSyncer&) = delete;
    JournalSyncer& operator=(const JournalSyncer&) = delete;

    // Syncs `fd` soon; does not wait. The fd must stay open until waitIdle().
    void request(int fd);
    // Returns once nothing is requested or running.
    void waitIdle();
    // The errno of a sync that failed since the last call; 0 when none did.
    int takeError();

private:
    void run();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    int m_pending = -1;
    bool m_running = false;
    bool m_stop = false;
    int m_error = 0;
    std::thread m_thread;
};
