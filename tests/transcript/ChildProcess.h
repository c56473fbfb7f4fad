// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

// Faults that only a separate process may set up (a file-size limit, fewer
// privileges, a private mount) are tried in a forked child; the parent looks
// at the exit code and at the files left behind.
namespace ChildProcess {

// Exit code a child uses to say that the system does not allow the set-up.
inline constexpr int Unsupported = 77;

// Runs `body` in a forked child and returns its exit code, or 128 + the
// signal that ended it.
int run(const std::function<int()>& body);

// In a child: gives up the capabilities that let root ignore file
// permissions, so that a read-only folder is read-only for it too. Nothing to
// do for an ordinary user.
bool dropPermissionOverrides();

// In a child: moves into a mount namespace of its own (with a user namespace
// when not root) and mounts a tmpfs with the given options over `dir`. The
// mount vanishes with the child.
bool mountPrivateTmpfs(const QString& dir, const QString& options);

} // namespace ChildProcess
