// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/Checker.h"

#include "reference/CheckSummary.h"
#include "reference/Tokenizer.h"

#include <gtest/gtest.h>

namespace {

// The alignment in one line: a correct token as itself, any other as
// mark(expected>typed), with only the side it has for a missing or extra one.
QString render(const CheckResult& r)
{
    QStringList parts;
    for (const AlignedToken& step : r.alignment) {
        const QString expected = step.expected >= 0 ? r.reference[step.expected].text : QString();
        const QString typed = step.typed >= 0 ? r.typed[step.typed].text : QString();
        if (step.mark == Mark::Correct)
            parts << expected;
        else if (step.mark == Mark::Missing || step.mark == Mark::Extra)
            parts << QStringLiteral("%1(%2)").arg(markName(step.mark), expected + typed);
        else
            parts << QStringLiteral("%1(%2>%3)").arg(markName(step.mark), expected, typed);
    }
    return parts.join(' ');
}

const CheckOptions kCase{0.5, true, false};
const CheckOptions kPunctuation{0.5, false, true};

struct Case
{
    const char* name;
    const char* reference;
    const char* typed;
    CheckOptions options;
    const char* expected;
};

const Case kCases[] = {
    {"exact", "The cat sat.", "The cat sat.", {}, "The cat sat"},
    {"nothing at all", "", "  ", {}, ""},
    // Case
    {"case aside", "The cat", "the CAT", {}, "minor(The>the) minor(cat>CAT)"},
    {"case counted", "The cat", "the cat", kCase, "typo(The>the) cat"},
    // Punctuation
    {"punctuation off", "Hello, world!", "Hello world", {}, "Hello world"},
    {"punctuation on", "Hello, world!", "Hello world", kPunctuation,
     "Hello missing(,) world missing(!)"},
    {"another mark", "Yes, sir", "Yes. sir", kPunctuation, "Yes wrong(,>.) sir"},
    {"a word is no mark", "Yes, sir", "Yes sir.", kPunctuation, "Yes missing(,) sir extra(.)"},
    // Each mark
    {"wrong", "I like tea", "I like coffee", {}, "I like wrong(tea>coffee)"},
    {"missing", "I like the tea", "I like tea", {}, "I like missing(the) tea"},
    {"extra", "I like tea", "I really like tea", {}, "I extra(really) like tea"},
    // Typo thresholds, in code points
    {"3 letters, transposed", "the cat", "the cta", {}, "the wrong(cat>cta)"},
    {"4 letters, transposed", "from", "form", {}, "typo(from>form)"},
    {"4 letters, 2 apart", "cold", "calm", {}, "wrong(cold>calm)"},
    {"one left out", "receive", "receve", {}, "typo(receive>receve)"},
    {"9 letters, 2 apart", "wonderful", "wondarfol", {}, "wrong(wonderful>wondarfol)"},
    {"10 letters, 2 apart", "everything", "evarythinq", {}, "typo(everything>evarythinq)"},
    {"10 and 8 letters", "everything", "evrythng", {}, "wrong(everything>evrythng)"},
    {"10 letters, 3 apart", "everything", "avarythinq", {}, "wrong(everything>avarythinq)"},
    {"two transpositions", "understand", "udnerstnad", {}, "typo(understand>udnerstnad)"},
    {"3 astral letters", "𐌰𐌱𐌲", "𐌰𐌱𐌴", {}, "wrong(𐌰𐌱𐌲>𐌰𐌱𐌴)"},
    {"4 astral letters", "𐌰𐌱𐌲𐌳", "𐌰𐌱𐌲𐌴", {}, "typo(𐌰𐌱𐌲𐌳>𐌰𐌱𐌲𐌴)"},
    // Scripts without spaces, by character
    {"Han", "我喜欢猫", "我喜欢狗", {}, "我 喜 欢 wrong(猫>狗)"},
    {"kana",
     "ひらがなとカーテン",
     "ひらかなとカーテン",
     {},
     "ひ ら wrong(が>か) な と カ ー テ ン"},
    {"astral Han", "𠀋𠀀", "𠀋", {}, "𠀋 missing(𠀀)"},
    // What a keyboard cannot tell apart
    {"full width", "Hello world", "ＨＥＬＬＯ　ｗｏｒｌｄ", {}, "minor(Hello>HELLO) world"},
    {"decomposed accent", "café", "cafe\u0301", {}, "café"},
    {"accent left out", "café", "cafe", {}, "typo(café>cafe)"},
    {"curly apostrophe", "don’t stop", "don't stop", {}, "don't stop"},
    {"quotes and hyphen", "“Well‐known”", "\"well-known\"", kPunctuation,
     "\" minor(Well>well) - known \""},
    {"em dash", "wait—now", "wait - now", kPunctuation, "wait - now"},
    // Numbers
    {"digits for words", "I have 3 cats", "I have three cats", {}, "I have wrong(3>three) cats"},
    {"numbers stay whole", "It was 1,000.5 m", "It was 1,000.5 m", {}, "It was 1,000.5 m"},
    // Ties, walking back from the end
    {"match before missing", "the the", "the", {}, "missing(the) the"},
    {"match before extra", "the", "the the", {}, "extra(the) the"},
    {"substitution first", "a b c", "x", {}, "missing(a) missing(b) wrong(c>x)"},
    {"missing before extra", "a b", "a ,", kPunctuation, "a extra(,) missing(b)"},
};

} // namespace

TEST(Checker, MarksEachTokenOfTheTable)
{
    for (const Case& c : kCases) {
        const CheckResult r = Checker(c.options).check(c.reference, c.typed);
        EXPECT_EQ(render(r).toStdString(), c.expected) << c.name;
    }
}

TEST(Checker, ScoresCountMistakesAgainstReferenceWords)
{
    struct Score
    {
        const char* reference;
        const char* typed;
        CheckOptions options;
        int words;
        double mistakes;
        std::optional<double> score;
    };
    const Score scores[] = {
        {"I receive the letter", "I recieve the letter", {}, 4, 0.5, 0.875},
        {"I receive the letter", "I recieve the letter", {0, false, false}, 4, 0, 1},
        {"I receive the letter", "I recieve the letter", {1, false, false}, 4, 1, 0.75},
        {"Hi, there.", "hi there", kPunctuation, 4, 2, 0.5},
        {"Hi, there.", "hi there", {0.5, true, true}, 4, 2.5, 0.375},
        {"yes", "no no no", {}, 1, 3, 0}, // never below zero
        {"", "hello", {}, 0, 1, std::nullopt},
    };
    for (const Score& s : scores) {
        const CheckResult r = Checker(s.options).check(s.reference, s.typed);
        EXPECT_EQ(r.words, s.words) << s.reference << " / " << s.typed;
        EXPECT_DOUBLE_EQ(r.mistakes, s.mistakes) << s.reference << " / " << s.typed;
        EXPECT_EQ(r.score, s.score) << s.reference << " / " << s.typed;
    }

    const MarkCounts c =
        Checker().check("The quick brown fox jumps over", "now the quikc fox jumps high").counts;
    EXPECT_EQ(std::vector<int>({c.correct, c.minor, c.typo, c.wrong, c.missing, c.extra}),
              std::vector<int>({2, 1, 1, 1, 1, 1}));

    // Only segments with reference words and some typing count for the lesson.
    const Checker checker;
    const QList<CheckResult> lesson{checker.check("I receive the letter", "I recieve the letter"),
                                    checker.check("not typed yet", " "),
                                    checker.check("", "no reference"),
                                    checker.check("yes", "no no no")};
    EXPECT_DOUBLE_EQ(lessonScore(lesson).value(), 3.5 / 5);
    EXPECT_EQ(lessonScore({lesson[1], lesson[2]}), std::nullopt);
}

TEST(Checker, NextWordFollowsTheLastCorrectOne)
{
    const auto next = [](const char* typed, CheckOptions options = {}) {
        const std::optional<Token> t =
            nextWord(Checker(options).check("Yes, I like the tea", typed));
        return t ? t->text.toStdString() : "(none)";
    };
    EXPECT_EQ(next(""), "Yes");
    EXPECT_EQ(next("yes"), "I");           // case aside
    EXPECT_EQ(next("yes I lkie"), "like"); // a typo is not yet the word
    EXPECT_EQ(next("Yes I like teh tea"), "(none)");
    EXPECT_EQ(next("Yes", kPunctuation), "I"); // never a punctuation mark
}

TEST(Checker, SummaryListsMistakesInReadingOrder)
{
    const Checker checker;
    const auto summary = [&](const char* reference, const char* typed,
                             std::optional<double> lesson) {
        return CheckSummary::text(checker.check(reference, typed), lesson).toStdString();
    };
    EXPECT_EQ(summary("I will receive the letter", "lol I Will recieve letter", 0.875),
              "3 mistakes: extra 'lol'; 'recieve' should be 'receive'; missing 'the'. "
              "Segment 50%, lesson 88%.");
    EXPECT_EQ(summary("Fine.", "fine", std::nullopt), "No mistakes. Segment 100%.");
    EXPECT_EQ(summary("", "fine", 0.5), "No reference words for this segment. Lesson 50%.");
    EXPECT_EQ(CheckSummary::percent(0.996), 99);
    EXPECT_EQ(CheckSummary::percent(0.004), 1);
    EXPECT_EQ(CheckSummary::percent(2.0 / 3), 67);
}

// Marks are drawn under what was typed, wherever normalisation moved things.
TEST(Tokenizer, TokensKnowWhereTheyStandInTheTypedText)
{
    struct Placed
    {
        const char* text;
        QList<std::pair<qsizetype, qsizetype>> ranges;
    };
    const Placed cases[] = {
        {"don’t  stop", {{0, 5}, {7, 4}}},
        {"ﬁne cafe\u0301 ok", {{0, 3}, {4, 5}, {10, 2}}},
        {"𠀋x…y", {{0, 2}, {2, 1}, {3, 1}, {3, 1}, {3, 1}, {4, 1}}}, // "…" is "...": three marks
    };
    for (const Placed& c : cases) {
        QList<std::pair<qsizetype, qsizetype>> ranges;
        for (const Token& t : Tokenizer::tokenize(c.text, true))
            ranges.append({t.start, t.length});
        EXPECT_EQ(ranges, c.ranges) << c.text;
    }
}
