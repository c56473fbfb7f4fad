// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/CheckSummary.h"

#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <QStringList>
#include <cmath>

namespace CheckSummary {

int percent(double score)
{
    const int p = int(std::lround(score * 100));
    if (score < 1 && p == 100)
        return 99;
    if (score > 0 && p == 0)
        return 1;
    return p;
}

namespace {

template<typename Text>
Phrases phrasesFrom(Text text)
{
    return {text(Texts::SummaryNoReferenceWords),
            text(Texts::SummaryNoMistakes),
            text(Texts::SummaryOneMistake),
            text(Texts::SummaryMistakes),
            text(Texts::SummaryShouldBe),
            text(Texts::SummaryMissing),
            text(Texts::SummaryExtra),
            text(Texts::SummarySegmentScore),
            text(Texts::SummaryLessonAfterSegment),
            text(Texts::SummaryLessonScore)};
}

QString percentText(double score)
{
    return QString::number(percent(score)) + QLatin1Char('%');
}

} // namespace

Phrases englishPhrases()
{
    return phrasesFrom([](const char* text) { return QString::fromUtf8(text); });
}

Phrases localizedPhrases()
{
    return phrasesFrom([](const char* text) { return LocalizedString(text); });
}

QString text(const CheckResult& result, std::optional<double> lessonScore, const Phrases& phrases)
{
    QStringList mistakes;
    for (const AlignedToken& step : result.alignment) {
        switch (step.mark) {
        case Mark::Correct:
        case Mark::Minor:
            break;
        case Mark::Typo:
        case Mark::Wrong:
            mistakes << stringWithFormat(phrases.shouldBe, {result.typed[step.typed].text,
                                                            result.reference[step.expected].text});
            break;
        case Mark::Missing:
            mistakes << stringWithFormat(phrases.missing, {result.reference[step.expected].text});
            break;
        case Mark::Extra:
            mistakes << stringWithFormat(phrases.extra, {result.typed[step.typed].text});
            break;
        }
    }

    QString out;
    if (!result.score)
        out = phrases.noReferenceWords;
    else if (mistakes.isEmpty())
        out = phrases.noMistakes;
    else if (mistakes.size() == 1)
        out = stringWithFormat(phrases.oneMistake, {mistakes.first()});
    else
        out = stringWithFormat(phrases.mistakes,
                               {QString::number(mistakes.size()), mistakes.join(QStringLiteral("; "))});
    QString scores;
    if (result.score && lessonScore)
        scores = stringWithFormat(phrases.segmentScore, {percentText(*result.score)}) +
                 QStringLiteral(", ") +
                 stringWithFormat(phrases.lessonAfterSegment, {percentText(*lessonScore)});
    else if (result.score)
        scores = stringWithFormat(phrases.segmentScore, {percentText(*result.score)});
    else if (lessonScore)
        scores = stringWithFormat(phrases.lessonScore, {percentText(*lessonScore)});
    if (!scores.isEmpty())
        out += QLatin1Char(' ') + scores + QLatin1Char('.');
    return out;
}

} // namespace CheckSummary
