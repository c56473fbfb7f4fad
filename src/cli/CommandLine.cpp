// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandLine.h"

#include "audio/AudioDecoder.h"
#include "cli/Commands.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <cstdio>

namespace {

bool g_verbose = false;

// The engine and the store log every step; that goes to stderr only on request.
void messageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if ((type == QtInfoMsg || type == QtDebugMsg) && !g_verbose)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

namespace Cli {

std::optional<int> parseCommandLine(QCommandLineParser& parser, const QString& command,
                                    const QStringList& args, const QString& argumentName,
                                    QString& positional)
{
    if (auto code = parseCommandLine(parser, command, args))
        return code;
    if (parser.positionalArguments().size() != 1) {
        printError(QStringLiteral("%1 takes exactly one %2").arg(command, argumentName));
        return UsageError;
    }
    positional = parser.positionalArguments().first();
    return std::nullopt;
}

std::optional<int> parseCommandLine(QCommandLineParser& parser, const QString& command,
                                    const QStringList& args)
{
    parser.addHelpOption();
    const QCommandLineOption verbose(QStringLiteral("verbose"),
                                     QStringLiteral("print the diagnostic log on stderr"));
    parser.addOption(verbose);
    if (!parser.parse(QStringList{QStringLiteral("kelmora-cli ") + command} + args)) {
        printError(parser.errorText());
        return UsageError;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        // The parser names the binary by its path; name the command instead.
        QString help = parser.helpText();
        const qsizetype usageEnd = help.indexOf(QLatin1String(" [options]"));
        if (help.startsWith(QLatin1String("Usage: ")) && usageEnd > 0)
            help.replace(7, usageEnd - 7, QStringLiteral("kelmora-cli ") + command);
        std::fputs(qPrintable(help), stdout);
        return Success;
    }
    g_verbose = parser.isSet(verbose);
    qInstallMessageHandler(messageHandler);
    AudioDecoder::setLibraryLogging(g_verbose);
    return std::nullopt;
}

std::optional<int> requireFile(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        printError(QStringLiteral("%1: no such file").arg(path));
        return Failure;
    }
    if (!file.isFile()) {
        printError(QStringLiteral("%1: not a file").arg(path));
        return Failure;
    }
    return std::nullopt;
}

void printError(const QString& message)
{
    std::fprintf(stderr, "kelmora-cli: %s\n", qPrintable(message));
}

} // namespace Cli
