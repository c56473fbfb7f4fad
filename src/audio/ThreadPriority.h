// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The threads that keep the sound going (the decode thread, the device's)
// must not wait behind whatever else keeps the cores busy: a compiler, a
// browser tab. Where the system lets this user lower a thread's nice value
// (root, CAP_SYS_NICE, or a nice limit in limits.conf), the calling thread
// gets ahead of ordinary work; elsewhere nothing changes. Never real-time
// scheduling: a thread stuck in a loop must not be able to lock up a desktop.
namespace ThreadPriority {

// Returns the nice value the calling thread now has.
int raiseForSound();
// The same for every thread of this process with this name: the sound
// system's own threads, which carry the sound to the server.
void raiseThreadsNamed(const char* name);

} // namespace ThreadPriority
