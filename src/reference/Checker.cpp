// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Checker.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

// Costs in half mistakes, so that the sums stay exact integers.
constexpr int kTypoCost = 1;
constexpr int kWrongCost = 2;
constexpr int kGapCost = 2;
constexpr int kNever = 1 << 20; // a word for a punctuation mark, or the reverse
constexpr qsizetype kMaxCells = 4'000'000;

struct Folded
{
    QString text;
    std::u32string points;
};

std::u32string codePoints(const QString& text)
{
    std::u32string points;
    points.reserve(size_t(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            points += QChar::surrogateToUcs4(text[i], text[i + 1]);
            ++i;
        } else {
            points += text[i].unicode();
        }
    }
    return points;
}

Folded fold(const Token& token)
{
    Folded f{token.text.toCaseFolded(), {}};
    f.points = codePoints(f.text);
    return f;
}

// The optimal-string-alignment distance of a and b, or k + 1 when it is more
// than k. Only the diagonal band |i - j| <= k matters (k is at most 2), so
// each row is 2k + 1 cells and a row with nothing within k ends the search.
int boundedDistance(const std::u32string& a, const std::u32string& b, int k)
{
    constexpr int kBand = 5;
    const int over = k + 1;
    const int la = int(a.size());
    const int lb = int(b.size());
    int before[kBand] = {};   // row i - 2
    int previous[kBand] = {}; // row i - 1
    int row[kBand] = {};      // row i; cell j is at j - i + k
    for (int d = 0; d <= 2 * k; ++d) {
        const int j = d - k;
        previous[d] = (j >= 0 && j <= lb) ? std::min(j, over) : over;
        before[d] = over;
    }
    for (int i = 1; i <= la; ++i) {
        int best = over;
        for (int d = 0; d <= 2 * k; ++d) {
            const int j = i + d - k;
            int v = over;
            if (j == 0) {
                v = std::min(i, over);
            } else if (j > 0 && j <= lb) {
                v = previous[d] + (a[size_t(i - 1)] != b[size_t(j - 1)]);
                if (d < 2 * k)
                    v = std::min(v, previous[d + 1] + 1);
                if (d > 0)
                    v = std::min(v, row[d - 1] + 1);
                if (i > 1 && j > 1 && a[size_t(i - 1)] == b[size_t(j - 2)] &&
                    a[size_t(i - 2)] == b[size_t(j - 1)])
                    v = std::min(v, before[d] + 1);
                v = std::min(v, over);
            }
            row[d] = v;
            best = std::min(best, v);
        }
        if (best > k)
            return over;
        std::copy(previous, previous + kBand, before);
        std::copy(row, row + kBand, previous);
    }
    return previous[lb - la + k];
}

bool typoApart(const std::u32string& a, const std::u32string& b)
{
    const int shorter = int(std::min(a.size(), b.size()));
    if (shorter < 4)
        return false;
    const int allowed = shorter >= 10 ? 2 : 1;
    if (std::abs(int(a.size()) - int(b.size())) > allowed)
        return false;
    const int distance = boundedDistance(a, b, allowed);
    return distance >= 1 && distance <= allowed;
}

struct Pair
{
    int cost;
    Mark mark;
};

Pair compare(const Token& expected, const Folded& e, const Token& typed, const Folded& t,
             bool countCase)
{
    if (expected.word != typed.word)
        return {kNever, Mark::Wrong};
    if (e.text == t.text) {
        if (expected.text == typed.text)
            return {0, Mark::Correct};
        return countCase ? Pair{kTypoCost, Mark::Typo} : Pair{0, Mark::Minor};
    }
    if (typoApart(e.points, t.points))
        return {kTypoCost, Mark::Typo};
    return {kWrongCost, Mark::Wrong};
}

// Fills in the counts and the score from the alignment.
CheckResult tally(CheckResult result, double typoWeight)
{
    MarkCounts& c = result.counts;
    for (const AlignedToken& step : result.alignment) {
        switch (step.mark) {
        case Mark::Correct:
            ++c.correct;
            break;
        case Mark::Minor:
            ++c.minor;
            break;
        case Mark::Typo:
            ++c.typo;
            break;
        case Mark::Wrong:
            ++c.wrong;
            break;
        case Mark::Missing:
            ++c.missing;
            break;
        case Mark::Extra:
            ++c.extra;
            break;
        }
    }
    result.words = int(result.reference.size());
    result.mistakes = c.wrong + c.missing + c.extra + c.typo * typoWeight;
    if (result.words > 0)
        result.score = std::max(0.0, result.words - result.mistakes) / result.words;
    return result;
}

} // namespace

const char* markName(Mark mark)
{
    switch (mark) {
    case Mark::Correct:
        return "correct";
    case Mark::Minor:
        return "minor";
    case Mark::Typo:
        return "typo";
    case Mark::Wrong:
        return "wrong";
    case Mark::Missing:
        return "missing";
    case Mark::Extra:
        return "extra";
    }
    return "";
}

Checker::Checker(CheckOptions options) : m_options(options) {}

bool Checker::isTypo(const QString& folded, const QString& otherFolded)
{
    return folded != otherFolded && typoApart(codePoints(folded), codePoints(otherFolded));
}

CheckResult Checker::check(const QString& reference, const QString& typed) const
{
    return check(Tokenizer::tokenize(reference, m_options.countPunctuation),
                 Tokenizer::tokenize(typed, m_options.countPunctuation));
}

CheckResult Checker::check(QList<Token> reference, QList<Token> typed) const
{
    CheckResult result;
    result.reference = std::move(reference);
    result.typed = std::move(typed);
    const QList<Token>& ref = result.reference;
    const QList<Token>& got = result.typed;
    const qsizetype n = ref.size();
    const qsizetype m = got.size();

    std::vector<Folded> refFolded;
    std::vector<Folded> gotFolded;
    refFolded.reserve(size_t(n));
    gotFolded.reserve(size_t(m));
    for (const Token& t : ref)
        refFolded.push_back(fold(t));
    for (const Token& t : got)
        gotFolded.push_back(fold(t));
    const auto pair = [&](qsizetype i, qsizetype j) {
        return compare(ref[i - 1], refFolded[size_t(i - 1)], got[j - 1], gotFolded[size_t(j - 1)],
                       m_options.countCase);
    };

    // A segment is a sentence or two; past this many cells (a pasted book)
    // tokens are paired in order instead, so that memory stays bounded.
    if ((n + 1) * (m + 1) > kMaxCells) {
        for (qsizetype k = 0; k < std::max(n, m); ++k) {
            if (k < n && k < m)
                result.alignment.append({pair(k + 1, k + 1).mark, k, k});
            else
                result.alignment.append(k < n ? AlignedToken{Mark::Missing, k, -1}
                                              : AlignedToken{Mark::Extra, -1, k});
        }
        return tally(std::move(result), m_options.typoWeight);
    }

    // cost[i][j]: the least cost of aligning the first i reference tokens
    // with the first j typed ones.
    const qsizetype width = m + 1;
    std::vector<int> cost(size_t((n + 1) * width));
    const auto at = [&](qsizetype i, qsizetype j) -> int& { return cost[size_t(i * width + j)]; };
    for (qsizetype j = 0; j <= m; ++j)
        at(0, j) = int(j) * kGapCost;
    for (qsizetype i = 1; i <= n; ++i) {
        at(i, 0) = int(i) * kGapCost;
        for (qsizetype j = 1; j <= m; ++j) {
            at(i, j) = std::min({at(i - 1, j - 1) + pair(i, j).cost, at(i - 1, j) + kGapCost,
                                 at(i, j - 1) + kGapCost});
        }
    }

    // Back from the end; the order of the tests is the tie-break.
    QList<AlignedToken>& steps = result.alignment;
    steps.reserve(std::max(n, m));
    for (qsizetype i = n, j = m; i > 0 || j > 0;) {
        if (i > 0 && j > 0) {
            const Pair p = pair(i, j);
            if (at(i, j) == at(i - 1, j - 1) + p.cost) {
                steps.append({p.mark, i - 1, j - 1});
                --i, --j;
                continue;
            }
        }
        if (i > 0 && at(i, j) == at(i - 1, j) + kGapCost) {
            steps.append({Mark::Missing, i - 1, -1});
            --i;
        } else {
            steps.append({Mark::Extra, -1, j - 1});
            --j;
        }
    }
    std::reverse(steps.begin(), steps.end());
    return tally(std::move(result), m_options.typoWeight);
}

std::optional<double> lessonScore(const QList<CheckResult>& segments)
{
    double right = 0;
    int words = 0;
    for (const CheckResult& s : segments) {
        if (s.words == 0 || s.typed.isEmpty())
            continue;
        right += std::max(0.0, s.words - s.mistakes);
        words += s.words;
    }
    if (words == 0)
        return std::nullopt;
    return right / words;
}

std::optional<Token> nextWord(const CheckResult& result)
{
    qsizetype after = -1;
    for (const AlignedToken& step : result.alignment) {
        if (step.mark == Mark::Correct || step.mark == Mark::Minor)
            after = step.expected;
    }
    for (qsizetype i = after + 1; i < result.reference.size(); ++i) {
        if (result.reference[i].word)
            return result.reference[i];
    }
    return std::nullopt;
}
