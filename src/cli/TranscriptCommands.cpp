// kelmora-cli parse-lrc / identity: the transcript store without the window.

#include "app/FileIdentity.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "transcript/DocumentManager.h"
#include "transcript/TranscriptionManager.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <cmath>
#include <cstdio>
#include <optional>

namespace {

bool g_verbose = false;

// The store logs every line it reads; that goes to stderr only on request.
void quietMessageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if ((type == QtInfoMsg || type == QtDebugMsg) && !g_verbose)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

// Parses the options and the one positional argument. Returns an exit code
// when the command should end here (help or a usage error).
std::optional<int> parse(QCommandLineParser& parser, const QString& command, const QString& argument,
                         const QStringList& args, QString& positional)
{
    parser.addHelpOption();
    const QCommandLineOption verbose(QStringLiteral("verbose"),
                                     QStringLiteral("print the store's diagnostic log on stderr"));
    parser.addOption(verbose);
    if (!parser.parse(QStringList{QStringLiteral("kelmora-cli ") + command} + args)) {
        Cli::printError(parser.errorText());
        return Cli::UsageError;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return Cli::Success;
    }
    if (parser.positionalArguments().size() != 1) {
        Cli::printError(QStringLiteral("%1 takes exactly one %2").arg(command, argument));
        return Cli::UsageError;
    }
    positional = parser.positionalArguments().first();
    g_verbose = parser.isSet(verbose);
    qInstallMessageHandler(quietMessageHandler);
    return std::nullopt;
}

std::optional<int> requireFile(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        Cli::printError(QStringLiteral("%1: no such file").arg(path));
        return Cli::Failure;
    }
    if (!file.isFile()) {
        Cli::printError(QStringLiteral("%1: not a file").arg(path));
        return Cli::Failure;
    }
    return std::nullopt;
}

} // namespace

namespace Cli {

int parseLrc(const QStringList& args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Reads a transcript (.lrc) as the application loads it and prints its texts "
                       "and segments as JSON."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("the transcript"));
    const QCommandLineOption duration(
        QStringLiteral("duration"),
        QStringLiteral("length of the open audio in seconds (default 0: no audio open)"),
        QStringLiteral("D"), QStringLiteral("0"));
    parser.addOption(duration);
    QString path;
    if (auto code = parse(parser, QStringLiteral("parse-lrc"), QStringLiteral("transcript file"), args, path))
        return *code;

    bool ok = false;
    const double total = parser.value(duration).toDouble(&ok);
    if (!ok || !std::isfinite(total) || total < 0.0) {
        printError(QStringLiteral("--duration takes a number of seconds, 0 or more"));
        return UsageError;
    }
    if (auto code = requireFile(path))
        return *code;

    TranscriptionManager store([total] { return total; });
    if (!store.loadTranscriptionsFromFile(path)) {
        printError(store.lastError());
        return Failure;
    }

    Json::Array texts;
    for (const QString& text : store.transcriptions())
        texts.emplace_back(text);
    Json::Array segments;
    for (const Segment& s : store.segments().value_or(SegmentList()))
        segments.push_back(Json::Object{{"start", s.start}, {"duration", s.duration}});
    const std::string out =
        Json(Json::Object{{"texts", std::move(texts)}, {"segments", std::move(segments)}}).dump();
    std::fwrite(out.data(), 1, out.size(), stdout);
    return Success;
}

int identity(const QStringList& args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Prints an audio file's identity (64 hexadecimal digits) on the first line and "
                       "the path of its transcript in the store on the second."));
    parser.addPositionalArgument(QStringLiteral("AUDIO"), QStringLiteral("the audio file"));
    QString path;
    if (auto code = parse(parser, QStringLiteral("identity"), QStringLiteral("audio file"), args, path))
        return *code;
    if (auto code = requireFile(path))
        return *code;

    QString error;
    if (!FileIdentity::identityKeyForFileAtPath(path, &error)) {
        printError(error);
        return Failure;
    }
    const std::optional<QString> id = FileIdentity::uniqueIdentifierForFileAtPath(path);
    const QString store =
        id ? FileIdentity::transcriptionPathForIdentifier(*id, DocumentManager::shared()) : QString();
    if (!id || store.isNull()) {
        printError(QStringLiteral("%1: the documents folder is not available").arg(path));
        return Failure;
    }
    std::printf("%s\n%s\n", qPrintable(*id), qPrintable(store));
    return Success;
}

} // namespace Cli
