// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli parse-lrc / identity: the transcript store without the window.

#include "app/FileIdentity.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "transcript/DocumentManager.h"
#include "transcript/TranscriptionManager.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <cmath>
#include <cstdio>
#include <optional>

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
    if (auto code = Cli::parseCommandLine(parser, QStringLiteral("parse-lrc"), args,
                                          QStringLiteral("transcript file"), path))
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
    parser.setApplicationDescription(QStringLiteral(
        "Prints an audio file's identity (64 hexadecimal digits) on the first line and "
        "the path of its transcript in the store on the second."));
    parser.addPositionalArgument(QStringLiteral("AUDIO"), QStringLiteral("the audio file"));
    QString path;
    if (auto code = Cli::parseCommandLine(parser, QStringLiteral("identity"), args,
                                          QStringLiteral("audio file"), path))
        return *code;
    if (auto code = requireFile(path))
        return *code;
    // The open panel hands the application an absolute path; the identity
    // hashes the path, so a relative one must be made absolute first.
    path = QFileInfo(path).absoluteFilePath();

    QString error;
    if (!FileIdentity::identityKeyForFileAtPath(path, &error)) {
        printError(error);
        return Failure;
    }
    const std::optional<QString> id = FileIdentity::uniqueIdentifierForFileAtPath(path);
    const QString store =
        id ? FileIdentity::transcriptionPathForIdentifier(*id, DocumentManager::shared())
           : QString();
    if (!id || store.isNull()) {
        printError(QStringLiteral("%1: the documents folder is not available").arg(path));
        return Failure;
    }
    std::printf("%s\n%s\n", qPrintable(*id), qPrintable(store));
    return Success;
}

} // namespace Cli
