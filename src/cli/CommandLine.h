// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class QCommandLineParser;

// What every kelmora-cli command does with its command line.
namespace Cli {

// Parses "kelmora-cli COMMAND ARGS" with the command's own options already
// added to `parser`, plus --help and --verbose, and exactly one positional
// argument (named by `argumentName` in the message when it is missing).
// Returns the exit code when the command ends here (help printed, or a usage
// error reported); otherwise stores the argument and returns nothing. The
// diagnostic log, FFmpeg's included, reaches stderr only with --verbose.
std::optional<int> parseCommandLine(QCommandLineParser& parser, const QString& command,
                                    const QStringList& args, const QString& argumentName,
                                    QString& positional);

// The same for a command whose forms take different numbers of positional
// arguments: those are left to the command to check.
std::optional<int> parseCommandLine(QCommandLineParser& parser, const QString& command,
                                    const QStringList& args);

// Failure with a one-line message unless `path` names an existing file.
std::optional<int> requireFile(const QString& path);

// Prints "kelmora-cli: message" on stderr.
void printError(const QString& message);

} // namespace Cli
