// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/Tokenizer.h"

#include <QList>
#include <QString>
#include <optional>

struct CheckOptions
{
    double typoWeight = 0.5;       // what a typo counts as a mistake: 0, 0.5 or 1
    bool countCase = false;        // a difference in case alone is a typo
    bool countPunctuation = false; // punctuation marks are tokens to check
};

enum class Mark
{
    Correct,
    Minor,   // differs in case only, and case does not count
    Typo,    // nearly the word (see Checker::isTypo)
    Wrong,   // another word in its place
    Missing, // in the reference, not typed
    Extra    // typed, not in the reference
};

// "correct", "minor", "typo", "wrong", "missing", "extra".
const char* markName(Mark mark);

// One step of the alignment: a reference token and what was typed for it.
struct AlignedToken
{
    Mark mark = Mark::Correct;
    qsizetype expected = -1; // index into CheckResult::reference; -1 for an extra token
    qsizetype typed = -1;    // index into CheckResult::typed; -1 for a missing token
};

struct MarkCounts
{
    int correct = 0;
    int minor = 0;
    int typo = 0;
    int wrong = 0;
    int missing = 0;
    int extra = 0;
};

struct CheckResult
{
    QList<Token> reference;
    QList<Token> typed;
    QList<AlignedToken> alignment; // in reading order
    MarkCounts counts;
    int words = 0;               // the reference's tokens
    double mistakes = 0;         // wrong + missing + extra + typo x typo weight
    std::optional<double> score; // max(0, words - mistakes) / words; none without words
};

// Compares what was typed with the reference, token by token, by the
// alignment of least cost: a match costs 0 (a difference in case too, unless
// case counts, when it is a typo), a typo 0.5, another word in a word's place
// 1, a token left out or added 1. A word never stands in for a punctuation
// mark: that is a missing token and an extra one. Of alignments of equal
// cost, the one chosen prefers, walking back from the end, a match or a
// substitution, then a missing token, then an extra one.
class Checker
{
public:
    explicit Checker(CheckOptions options = {});

    const CheckOptions& options() const { return m_options; }

    CheckResult check(const QString& reference, const QString& typed) const;
    // The same on tokens already cut (with this checker's punctuation
    // option), so that a reference need not be cut again for each check.
    CheckResult check(QList<Token> reference, QList<Token> typed) const;

    // Whether two different case-folded words are a typo apart: an
    // optimal-string-alignment distance of 1 (a transposition counts 1) when
    // the shorter has at least 4 code points, or of at most 2 when it has at
    // least 10.
    static bool isTypo(const QString& folded, const QString& otherFolded);

private:
    CheckOptions m_options;
};

// Σ max(0, words - mistakes) / Σ words over the segments with reference
// words and some typed tokens; none when there is no such segment.
std::optional<double> lessonScore(const QList<CheckResult>& segments);

// The reference word after the last one typed correctly (case aside), for a
// hint; the first word when none was, none when the last word was.
std::optional<Token> nextWord(const CheckResult& result);
