// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/LrcReader.h"

#include "support/TestSupport.h"
#include "transcript/LrcLine.h"

#include <gtest/gtest.h>

using namespace Lrc;

namespace {

// The stamp of a line in seconds, or -1 when the line has none.
double stampOf(const QString& line)
{
    const std::optional<StampMatch> m = matchStamp(line);
    return m ? stampSeconds(*m) : -1.0;
}

} // namespace

TEST(LrcReader, WrittenLinesReadBackWithTheirMilliseconds)
{
    // The written lines themselves are held by the saved-file tests.
    EXPECT_DOUBLE_EQ(stampOf(formatLine(1.001, "b")), 1.001);
    EXPECT_DOUBLE_EQ(stampOf(formatLine(4.72f, "c")), 4.719); // a float32 cut, truncated
    // Past 99 minutes the minutes take three digits, which are not read back.
    EXPECT_EQ(formatLine(6000.0, "x"), "[100:00.000]x");
    EXPECT_EQ(stampOf(formatLine(6000.0, "x")), -1.0);
}

TEST(LrcReader, FractionIsAlwaysReadAsMilliseconds)
{
    EXPECT_DOUBLE_EQ(stampOf("[00:01.5]"), 1.005);
    EXPECT_DOUBLE_EQ(stampOf("[00:01.50]"), 1.05);
    EXPECT_DOUBLE_EQ(stampOf("[00:01.500]"), 1.5);
    EXPECT_DOUBLE_EQ(stampOf("[00:01.123456]"), 1.123);
    EXPECT_DOUBLE_EQ(stampOf("[99:99.999]"), 99 * 60 + 99 + 0.999); // seconds are not capped at 59
    EXPECT_EQ(stampOf("[00:01.1234567]"), -1.0);                    // seven digits
    EXPECT_EQ(stampOf("[00:05]text"), -1.0);                        // no fraction
    EXPECT_EQ(stampOf("[0:05.000]"), -1.0);
    EXPECT_EQ(stampOf("[00:5.000]"), -1.0);
    EXPECT_EQ(stampOf("[00:05.]"), -1.0);
    EXPECT_EQ(stampOf("[00-05.000]"), -1.0);
}

TEST(LrcReader, StampIsFoundAnywhereAndOnlyTheFirstCounts)
{
    const std::optional<StampMatch> m = matchStamp("lost [00:02.000] kept [00:03.000] too");
    ASSERT_TRUE(m);
    EXPECT_EQ(m->position, 5);
    EXPECT_EQ(m->minutes, "00");
    EXPECT_EQ(m->seconds, "02");
    EXPECT_EQ(m->fraction, "000");
    EXPECT_EQ(m->rest, " kept [00:03.000] too");

    // A broken stamp before a good one is passed over.
    EXPECT_DOUBLE_EQ(stampOf("[00:01.1234567] [00:04.000]b"), 4.0);
    EXPECT_DOUBLE_EQ(stampOf("[[00:04.000]"), 4.0);
    // The shortest fraction that is followed by "]" is taken.
    const std::optional<StampMatch> lazy = matchStamp("[00:01.12]3]");
    ASSERT_TRUE(lazy);
    EXPECT_EQ(lazy->fraction, "12");
    EXPECT_EQ(lazy->rest, "3]");
    EXPECT_FALSE(matchStamp("[re:something]"));
    EXPECT_FALSE(matchStamp("[length:03:20]"));
    EXPECT_FALSE(matchStamp(""));
}

TEST(LrcReader, AnyUnicodeDecimalDigitCountsAsInIcu)
{
    // Arabic-Indic and full-width digits are decimal digits (Nd).
    EXPECT_DOUBLE_EQ(stampOf(QString::fromUtf8("[\u0660\u0661:\u0660\u0662.\u0665\u0660\u0660]x")),
                     62.5);
    EXPECT_DOUBLE_EQ(stampOf(QString::fromUtf8("[\uFF10\uFF10:\uFF11\uFF10.\uFF10\uFF10\uFF17]")),
                     10.007);
    // Mathematical bold digits lie outside the BMP; a fraction cut after three
    // UTF-16 units keeps one whole digit.
    EXPECT_DOUBLE_EQ(stampOf(QString::fromUtf8("[00:01.\U0001D7D1\U0001D7D2]")), 1.003);
    // Found by the fuzz target against an engine without Unicode digits: a
    // full-width digit inside the fraction, after broken header-like text.
    EXPECT_DOUBLE_EQ(stampOf(QString::fromUtf8("[4[4[ar:[ar:[00:00.0\uFF1100]0")), 0.01);
    // Superscript two is a number but not a decimal digit.
    EXPECT_EQ(stampOf(QString::fromUtf8("[0\u00B2:00.000]")), -1.0);
    EXPECT_EQ(leadingIntegerValue(u"12x3"), 12);
    EXPECT_EQ(leadingIntegerValue(u""), 0);
    EXPECT_EQ(leadingIntegerValue(u"99999999999999999999999999"),
              leadingIntegerValue(u"999999999999999999999999999"));
}

TEST(LrcReader, SplitsAtEveryNewlineCharacter)
{
    const QString text = QString::fromUtf8("a\r\nb\rc\nd\u2028e\u2029f\u0085g\x0Bh\x0Ci");
    EXPECT_EQ(splitLines(text), (QStringList{"a", "", "b", "c", "d", "e", "f", "g", "h", "i"}));
    EXPECT_EQ(splitLines(""), QStringList{""});
    EXPECT_EQ(splitLines("x\n"), (QStringList{"x", ""}));
}

TEST(LrcReader, TrimsSpacesAndTabsButNothingElse)
{
    EXPECT_EQ(trimSpacesAndTabs(QString::fromUtf8(" \t\u00A0\u3000text  here\u2003\t ")),
              "text  here");
    // A zero-width space is a format character, not a space.
    EXPECT_EQ(trimSpacesAndTabs(QString::fromUtf8("\u200Bx\u200B")),
              QString::fromUtf8("\u200Bx\u200B"));
    EXPECT_EQ(trimSpacesAndTabs(u" \t "), "");
}

TEST(LrcReader, DecodingRefusesMalformedUtf8AndDropsTheByteOrderMark)
{
    EXPECT_EQ(decodeUtf8("\xEF\xBB\xBF[00:00.000]a"), "[00:00.000]a");
    EXPECT_EQ(decodeUtf8(QByteArray("a\0b", 3)), QStringView(u"a\0b", 3).toString());
    EXPECT_EQ(decodeUtf8(""), "");
    EXPECT_FALSE(decodeUtf8("[00:00.000]caf\xE9")); // Latin-1
    EXPECT_FALSE(decodeUtf8("\xC0\xAF"));           // overlong "/"
    EXPECT_FALSE(decodeUtf8("\xED\xA0\x80"));       // an encoded surrogate
    EXPECT_FALSE(decodeUtf8("ok\xE2\x82"));         // cut off at the end
    EXPECT_FALSE(decodeUtf8("\xF4\x90\x80\x80"));   // beyond U+10FFFF
}

TEST(LrcReader, ReadingSkipsHeadersEmptyLinesAndRepeatedStamps)
{
    TestSupport::LogCapture log;
    const StampedLines lines =
        readStampedLines("[ti:Title]\n[ar:Artist]\n[al:Album]\n[by:me]\n[offset:500]\n[re:tool]\n\n"
                         "[00:01.000] one \n[00:01.000]dropped\n[00:02.000]two\n[00:01.000]again\n"
                         "no stamp here\n[TI:upper case is not a header][00:03.000]three");
    EXPECT_EQ(lines.stamps, (QList<double>{1.0, 2.0, 1.0, 3.0}));
    EXPECT_EQ(lines.texts, (QStringList{"one", "two", "again", "three"}));
    EXPECT_TRUE(
        log.contains("loadTranscriptionsFromFile:1,timestamp=1.000000,line=[00:01.000] one "));
    EXPECT_TRUE(log.contains("loadTranscriptionsFromFile:4,timestamp=3.000000,"
                             "line=[TI:upper case is not a header][00:03.000]three"));
    EXPECT_EQ(log.lines().size(), 4);
}

TEST(LrcReader, HeaderTagsAreMatchedCaseSensitivelyAtTheStartOnly)
{
    // A header tag line is skipped even if it holds a stamp later on.
    EXPECT_TRUE(readStampedLines("[ti:x][00:01.000]a").stamps.isEmpty());
    EXPECT_EQ(readStampedLines(" [ti:x][00:01.000]a").texts, QStringList{"a"});
    // A first stamp equal to 0 is accepted: the comparison needs an earlier line.
    EXPECT_EQ(readStampedLines("[00:00.000]\n[00:00.000]b").texts, QStringList{""});
}
