// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/Checker.h"

#include <QString>
#include <optional>

namespace CheckSummary {

// The sentence's parts, "%@" where words and numbers go.
struct Phrases
{
    QString noReferenceWords, noMistakes, oneMistake, mistakes;
    QString shouldBe, missing, extra;
    QString segmentScore, lessonAfterSegment, lessonScore;
};
// In English, for the command line.
Phrases englishPhrases();
// In the interface language.
Phrases localizedPhrases();

// A check in one line, for a screen reader and the command line: "2
// mistakes: 'recieve' should be 'receive'; missing 'the'. Segment 67%,
// lesson 88%." Differences in case that do not count are not listed.
QString text(const CheckResult& result, std::optional<double> lessonScore,
             const Phrases& phrases = englishPhrases());

// A score as a whole percentage; only a perfect score shows 100% and only
// a zero score 0%.
int percent(double score);

} // namespace CheckSummary
