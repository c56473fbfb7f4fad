// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QThreadPool>
#include <functional>
#include <utility>

// Hand-overs between the main thread and workers. Qt passes jobs, events and
// queued calls between threads under its own mutexes, which ThreadSanitizer
// cannot see (Qt is not built with it), so in a sanitizer build every write
// before a hand-over would look like a race with every read after it. These
// two functions release what the sending thread wrote once the job or the
// call is complete, and acquire it on the receiving thread before anything
// of it is read; outside a sanitizer build the annotations are empty.
#if defined(__SANITIZE_THREAD__)
extern "C" void __tsan_acquire(void* address);
extern "C" void __tsan_release(void* address);
#endif

namespace ThreadHandOff {

#if defined(__SANITIZE_THREAD__)
// One address for every hand-over; releases on one address accumulate, so an
// acquire sees everything released before it.
inline char token;
inline void released()
{
    __tsan_release(&token);
}
inline void acquired()
{
    __tsan_acquire(&token);
}
#else
inline void released() {}
inline void acquired() {}
#endif

} // namespace ThreadHandOff

// Starts a job on a pool (QThreadPool::start).
template <typename Job> void startHandedOver(QThreadPool* pool, Job&& job)
{
    std::function<void()> handed = [job = std::forward<Job>(job)]() mutable {
        ThreadHandOff::acquired();
        job();
    };
    ThreadHandOff::released();
    pool->start(std::move(handed));
}

// Runs a function later on the main thread, unless the context is gone by
// then (like a queued QMetaObject::invokeMethod with a context object). The
// context must live on the main thread. The function travels inside an event
// built before the release, so nothing of it is written after it.
void postHandedOver(QObject* context, std::function<void()> function);
