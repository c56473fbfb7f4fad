// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

// Each subcommand receives its own arguments (without the program and command
// names) and returns the process exit code.
namespace Cli {

enum ExitCode
{
    Success = 0,
    Failure = 1,
    UsageError = 2
};

int analyze(const QStringList& args);
int split(const QStringList& args);
int parseLrc(const QStringList& args);
int identity(const QStringList& args);
int play(const QStringList& args);
int check(const QStringList& args);
int align(const QStringList& args);

} // namespace Cli
