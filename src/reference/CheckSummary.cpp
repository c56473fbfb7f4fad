// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/CheckSummary.h"

#include <QStringList>
#include <cmath>

namespace CheckSummary {

namespace {

QString quoted(const QList<Token>& tokens, qsizetype index)
{
    return QLatin1Char('\'') + tokens[index].text + QLatin1Char('\'');
}

} // namespace

int percent(double score)
{
    const int p = int(std::lround(score * 100));
    if (score < 1 && p == 100)
        return 99;
    if (score > 0 && p == 0)
        return 1;
    return p;
}

QString text(const CheckResult& result, std::optional<double> lessonScore)
{
    QStringList mistakes;
    for (const AlignedToken& step : result.alignment) {
        switch (step.mark) {
        case Mark::Correct:
        case Mark::Minor:
            break;
        case Mark::Typo:
        case Mark::Wrong:
            mistakes << quoted(result.typed, step.typed) + QStringLiteral(" should be ") +
                            quoted(result.reference, step.expected);
            break;
        case Mark::Missing:
            mistakes << QStringLiteral("missing ") + quoted(result.reference, step.expected);
            break;
        case Mark::Extra:
            mistakes << QStringLiteral("extra ") + quoted(result.typed, step.typed);
            break;
        }
    }

    QString out;
    if (!result.score)
        out = QStringLiteral("No reference words for this segment.");
    else if (mistakes.isEmpty())
        out = QStringLiteral("No mistakes.");
    else
        out =
            QStringLiteral("%1 %2: %3.")
                .arg(mistakes.size())
                .arg(mistakes.size() == 1 ? QStringLiteral("mistake") : QStringLiteral("mistakes"))
                .arg(mistakes.join(QStringLiteral("; ")));
    QStringList scores;
    if (result.score)
        scores << QStringLiteral("Segment %1%").arg(percent(*result.score));
    if (lessonScore)
        scores << QStringLiteral("lesson %1%").arg(percent(*lessonScore));
    if (!scores.isEmpty()) {
        scores.first()[0] = scores.first()[0].toUpper();
        out += QLatin1Char(' ') + scores.join(QStringLiteral(", ")) + QLatin1Char('.');
    }
    return out;
}

} // namespace CheckSummary
