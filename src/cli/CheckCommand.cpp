// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli check: what the learner typed against a reference text.

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "reference/Checker.h"
#include "reference/ReferenceMapping.h"
#include "reference/ReferenceReader.h"
#include "transcript/TranscriptionManager.h"

#include <QCommandLineParser>
#include <cmath>
#include <cstdio>
#include <optional>

namespace {

struct CheckCommandOptions
{
    QCommandLineOption typoWeight{
        QStringLiteral("typo-weight"),
        QStringLiteral("what a typo counts as a mistake, from 0 to 1 (default 0.5)"),
        QStringLiteral("W"), QStringLiteral("0.5")};
    QCommandLineOption countCase{QStringLiteral("count-case"),
                                 QStringLiteral("a difference in case alone is a typo")};
    QCommandLineOption countPunctuation{QStringLiteral("count-punctuation"),
                                        QStringLiteral("punctuation marks are checked too")};

    void addTo(QCommandLineParser& parser) const
    {
        parser.addOptions({typoWeight, countCase, countPunctuation});
    }

    // The options as given, or nothing after a one-line reason.
    std::optional<CheckOptions> read(const QCommandLineParser& parser) const
    {
        CheckOptions options;
        bool ok = false;
        options.typoWeight = parser.value(typoWeight).toDouble(&ok);
        if (!ok || !std::isfinite(options.typoWeight) || options.typoWeight < 0 ||
            options.typoWeight > 1) {
            Cli::printError(QStringLiteral("--typo-weight takes a number from 0 to 1"));
            return std::nullopt;
        }
        options.countCase = parser.isSet(countCase);
        options.countPunctuation = parser.isSet(countPunctuation);
        return options;
    }
};

Json tokenText(const QList<Token>& tokens, qsizetype index)
{
    return index < 0 ? Json() : Json(tokens[index].text);
}

// One segment's check as the command prints it.
Json segmentJson(int index, const QString& reference, const QString& typed, const CheckResult& r)
{
    Json::Array tokens;
    for (const AlignedToken& step : r.alignment) {
        tokens.push_back(Json::Object{{"mark", markName(step.mark)},
                                      {"expected", tokenText(r.reference, step.expected)},
                                      {"typed", tokenText(r.typed, step.typed)}});
    }
    const MarkCounts& c = r.counts;
    return Json::Object{{"index", index},
                        {"reference", reference},
                        {"typed", typed},
                        {"words", r.words},
                        {"mistakes", r.mistakes},
                        {"score", r.score ? Json(*r.score) : Json()},
                        {"counts", Json::Object{{"correct", c.correct},
                                                {"minor", c.minor},
                                                {"typo", c.typo},
                                                {"wrong", c.wrong},
                                                {"missing", c.missing},
                                                {"extra", c.extra}}},
                        {"tokens", std::move(tokens)}};
}

void print(const Json& json)
{
    const std::string out = json.dump();
    std::fwrite(out.data(), 1, out.size(), stdout);
}

// A reference file laid over a transcript's segments, each row checked.
int checkFiles(const QString& referencePath, const QString& transcriptPath, double duration,
               const CheckOptions& options)
{
    if (auto code = Cli::requireFile(referencePath))
        return *code;
    if (auto code = Cli::requireFile(transcriptPath))
        return *code;
    TranscriptionManager store([duration] { return duration; });
    if (!store.loadTranscriptionsFromFile(transcriptPath)) {
        Cli::printError(store.lastError());
        return Cli::Failure;
    }
    const SegmentList segments = store.segments().value_or(SegmentList());
    const QStringList typed = store.transcriptions();
    if (segments.isEmpty()) {
        Cli::printError(QStringLiteral("%1: the transcript has no segments").arg(transcriptPath));
        return Cli::Failure;
    }
    // Without the audio, the transcript's last segment says where it ends.
    const double end =
        duration > 0.0 ? duration : segments.last().start + segments.last().duration;
    ReferenceReadError error;
    const std::optional<ReferenceText> reference =
        ReferenceReader::readFile(referencePath, end, &error);
    if (!reference) {
        Cli::printError(error.message);
        return Cli::Failure;
    }
    const QStringList expected = ReferenceMapping::map(*reference, segments);
    const Checker checker(options);
    QList<CheckResult> results;
    Json::Array rows;
    int checked = 0;
    for (qsizetype i = 0; i < segments.size(); ++i) {
        const QString want = expected.value(i);
        const QString got = typed.value(i);
        results.push_back(checker.check(want, got));
        const CheckResult& r = results.last();
        if (r.words > 0 && !r.typed.isEmpty())
            ++checked;
        rows.push_back(segmentJson(int(i), want, got, r));
    }
    // null when nothing was checked; built apart, as GCC 12 warns wrongly
    // about a conditional inside the initializer list
    Json score;
    if (const std::optional<double> lesson = lessonScore(results))
        score = Json(*lesson);
    print(Json::Object{{"segments", std::move(rows)}, {"score", score}, {"checked", checked}});
    return Cli::Success;
}

} // namespace

namespace Cli {

int check(const QStringList& args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Checks typed text against a reference text word by word and prints the marks and "
        "the score as JSON."));
    const QCommandLineOption referenceText(QStringLiteral("reference-text"),
                                           QStringLiteral("the reference"), QStringLiteral("TEXT"));
    const QCommandLineOption typedText(QStringLiteral("typed-text"),
                                       QStringLiteral("what was typed"), QStringLiteral("TEXT"));
    const QCommandLineOption duration(
        QStringLiteral("duration"),
        QStringLiteral("with files: length of the audio in seconds (default 0: the transcript's)"),
        QStringLiteral("D"), QStringLiteral("0"));
    parser.addOptions({referenceText, typedText, duration});
    parser.addPositionalArgument(QStringLiteral("REFERENCE"),
                                 QStringLiteral("a reference file (.txt, .srt, .vtt, .lrc)"),
                                 QStringLiteral("[REFERENCE TRANSCRIPT.lrc]"));
    const CheckCommandOptions checkOptions;
    checkOptions.addTo(parser);
    if (auto code = parseCommandLine(parser, QStringLiteral("check"), args))
        return *code;

    const QStringList files = parser.positionalArguments();
    const bool texts = parser.isSet(referenceText) || parser.isSet(typedText);
    if (texts ? (!parser.isSet(referenceText) || !parser.isSet(typedText) || !files.isEmpty())
              : files.size() != 2) {
        printError(QStringLiteral(
            "check takes --reference-text and --typed-text, or a reference and a transcript"));
        return UsageError;
    }
    const std::optional<CheckOptions> options = checkOptions.read(parser);
    if (!options)
        return UsageError;
    if (!texts) {
        bool ok = false;
        const double total = parser.value(duration).toDouble(&ok);
        if (!ok || !std::isfinite(total) || total < 0.0) {
            printError(QStringLiteral("--duration takes a number of seconds, 0 or more"));
            return UsageError;
        }
        return checkFiles(files[0], files[1], total, *options);
    }
    const QString reference = parser.value(referenceText);
    const QString typed = parser.value(typedText);
    print(segmentJson(0, reference, typed, Checker(*options).check(reference, typed)));
    return Success;
}

} // namespace Cli
