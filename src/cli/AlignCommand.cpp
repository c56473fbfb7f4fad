// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli align: a plain text's sentences placed on their recording.

#include "align/AlignmentLanguages.h"
#include "align/SentenceAligner.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "reference/ReferenceMapping.h"
#include "reference/ReferenceReader.h"

#include <QCommandLineParser>
#include <QLocale>
#include <cmath>
#include <cstdio>

namespace Cli {

int align(const QStringList& args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Places the sentences of a text on the recording that reads it and prints their times "
        "as JSON."));
    const QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("the text's language, a code such as en, fr or cmn (default: guessed)"),
        QStringLiteral("L"));
    parser.addOption(language);
    parser.addPositionalArgument(QStringLiteral("AUDIO"), QStringLiteral("the recording"));
    parser.addPositionalArgument(QStringLiteral("TEXT"),
                                 QStringLiteral("the text it reads (.txt, .srt, .vtt, .lrc)"));
    if (auto code = parseCommandLine(parser, QStringLiteral("align"), args))
        return *code;
    const QStringList files = parser.positionalArguments();
    if (files.size() != 2) {
        printError(QStringLiteral("align takes a recording and a text"));
        return UsageError;
    }
    if (auto code = requireFile(files[0]))
        return *code;
    if (auto code = requireFile(files[1]))
        return *code;

    ReferenceReadError readError;
    const std::optional<ReferenceText> text = ReferenceReader::readFile(files[1], 0.0, &readError);
    if (!text) {
        printError(readError.message);
        return Failure;
    }
    const QStringList sentences = ReferenceMapping::sentences(text->units());
    if (sentences.isEmpty()) {
        printError(QStringLiteral("%1: the text has no sentence").arg(files[1]));
        return Failure;
    }
    QString code = parser.value(language);
    if (code.isEmpty())
        code = AlignmentLanguages::guess(sentences.join(u' '), QLocale::system().name());
    if (!AlignmentLanguages::isKnown(code)) {
        printError(QStringLiteral("unknown language \"%1\"").arg(code));
        return Failure;
    }

    QString error;
    const std::optional<AlignedSentences> aligned =
        SentenceAligner::align(files[0], sentences, code, {}, nullptr, &error);
    if (!aligned) {
        printError(error);
        return Failure;
    }
    // Milliseconds are all a boundary is good for.
    auto seconds = [](double t) { return std::round(t * 1000.0) / 1000.0; };
    Json::Array rows;
    for (const AlignedSentence& s : *aligned) {
        rows.push_back(Json::Object{{"text", s.text},
                                    {"start", seconds(s.start)},
                                    {"end", seconds(s.end)},
                                    {"uncertain", s.uncertain}});
    }
    const std::string out =
        Json(Json::Object{{"language", code}, {"sentences", std::move(rows)}}).dump();
    std::fwrite(out.data(), 1, out.size(), stdout);
    return Success;
}

} // namespace Cli
