// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli check: what the learner typed against a reference text.

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "reference/Checker.h"

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
Json segmentJson(int index, const QString& reference, const QString& typed,
                 const CheckOptions& options)
{
    const CheckResult r = Checker(options).check(reference, typed);
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
    parser.addOptions({referenceText, typedText});
    const CheckCommandOptions checkOptions;
    checkOptions.addTo(parser);
    if (auto code = parseCommandLine(parser, QStringLiteral("check"), args))
        return *code;

    if (!parser.isSet(referenceText) || !parser.isSet(typedText) ||
        !parser.positionalArguments().isEmpty()) {
        printError(QStringLiteral("check takes --reference-text and --typed-text"));
        return UsageError;
    }
    const std::optional<CheckOptions> options = checkOptions.read(parser);
    if (!options)
        return UsageError;
    const std::string out =
        segmentJson(0, parser.value(referenceText), parser.value(typedText), *options).dump();
    std::fwrite(out.data(), 1, out.size(), stdout);
    return Success;
}

} // namespace Cli
