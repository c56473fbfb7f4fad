// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli: Kelmora's engine without the window, for scripts and for a
// quick look at what the engine makes of a file.

#include "cli/CommandLine.h"
#include "cli/Commands.h"

#include <QCoreApplication>
#include <cstdio>
#include <functional>

namespace {

struct Command
{
    const char* name;
    const char* summary;
    std::function<int(const QStringList&)> run;
};

const Command kCommands[] = {
    {"analyze", "print the loudness profile and segments of an audio file as JSON", Cli::analyze},
    {"split", "print the LRC time stamps of an audio file's segments", Cli::split},
    {"parse-lrc", "read a transcript as the application loads it; print texts and segments as JSON",
     Cli::parseLrc},
    {"identity", "print an audio file's identity and where its transcript is stored",
     Cli::identity},
    {"play", "play an audio file, or one segment of it, through the sound device", Cli::play},
    {"check", "check typed text against a reference text; print the marks and score as JSON",
     Cli::check},
    {"align", "place a text's sentences on the recording that reads it; print them as JSON",
     Cli::align},
};

void printUsage(FILE* to)
{
    std::fprintf(to, "Usage: kelmora-cli COMMAND [OPTIONS] ...\n\nCommands:\n");
    for (const Command& c : kCommands)
        std::fprintf(to, "  %-10s %s\n", c.name, c.summary);
    std::fprintf(to, "\nRun 'kelmora-cli COMMAND --help' for a command's options.\n");
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelmora-cli"));
    QStringList args = QCoreApplication::arguments();
    args.removeFirst();

    if (args.isEmpty()) {
        printUsage(stderr);
        return Cli::UsageError;
    }
    const QString name = args.takeFirst();
    if (name == QLatin1String("--help") || name == QLatin1String("-h") ||
        name == QLatin1String("help")) {
        printUsage(stdout);
        return Cli::Success;
    }
    for (const Command& c : kCommands) {
        if (name == QLatin1String(c.name))
            return c.run(args);
    }
    Cli::printError(QStringLiteral("unknown command '%1'").arg(name));
    printUsage(stderr);
    return Cli::UsageError;
}
