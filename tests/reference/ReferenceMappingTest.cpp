// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ReferenceMapping.h"

#include "ReferenceTestSupport.h"

#include <cmath>
#include <gtest/gtest.h>

using ReferenceTest::timed;
using ReferenceTest::untimed;

namespace {

ReferenceText plain(const QStringList& lines)
{
    QList<ReferenceUnit> units;
    for (const QString& line : lines)
        units.append(untimed(line));
    return ReferenceText("plain.txt", units);
}

} // namespace

TEST(ReferenceMapping, TimedUnitsGoWhereTheirMidpointIsJoinedInOrder)
{
    const QList<ReferenceUnit> units = {
        timed("lead-in", 0.0, 2.0),    // before segment 0
        timed("one", 3.0, 5.0),        // midpoint 4
        timed("straddles", 8.0, 14.0), // 11: the second
        timed("same", 9.0, 10.5),      // 9.75: the first
        timed("edge", 19.0, 21.0),     // 20: a start
        timed("past", 25.0, 40.0),     // beyond the end
    };
    const ReferenceText cues("a.srt", units);
    const QStringList texts = ReferenceMapping::map(cues, {2.5, 10.0, 20.0, 30.0}, 35.0);
    EXPECT_EQ(texts, (QStringList{"lead-in one same", "straddles", "edge", "past"}));
    EXPECT_EQ(ReferenceMapping::map(cues, SegmentList{{2.5, 7.5}, {10.0, 25.0}}),
              (QStringList{"lead-in one same", "straddles edge past"}));
    EXPECT_TRUE(ReferenceMapping::map(cues, QList<double>{}, 35.0).isEmpty());
}

TEST(ReferenceMapping, PlainTextLineForLineWhenTheCountsAgree)
{
    const ReferenceText text = plain({"One. Two.", "Three", "Four"});
    EXPECT_EQ(ReferenceMapping::map(text, {0.0, 1.0, 50.0}, 60.0),
              (QStringList{"One. Two.", "Three", "Four"}));
    // Times on only some units are no times.
    const ReferenceText mixed("m.txt", {timed("a", 50.0, 51.0), untimed("b")});
    EXPECT_EQ(ReferenceMapping::map(mixed, {0.0, 10.0}, 60.0), (QStringList{"a", "b"}));
}

TEST(ReferenceMapping, PlainTextSentencesFollowTheDuration)
{
    EXPECT_EQ(ReferenceMapping::sentences({untimed("Hello there. How are you? Fine!"),
                                           untimed("No stop here"), untimed("Last one.")}),
              (QStringList{"Hello there.", "How are you?", "Fine!", "No stop here", "Last one."}));

    // Ten characters a sentence; the second segment is three times as long
    // as the others, and gets three times the text.
    const ReferenceText even = plain({"Aaaa bbbb. Cccc dddd. Eeee ffff.", "Gggg hhhh. Iiii jjjj."});
    EXPECT_EQ(ReferenceMapping::map(even, {0.0, 2.0, 8.0}, 10.0),
              (QStringList{"Aaaa bbbb.", "Cccc dddd. Eeee ffff. Gggg hhhh.", "Iiii jjjj."}));
    // More segments than sentences: some stay empty, none is dropped.
    EXPECT_EQ(ReferenceMapping::map(plain({"Aaaa bbbb. Cccc dddd."}), {0, 1, 2, 3, 4}, 5.0),
              (QStringList{"", "Aaaa bbbb.", "", "Cccc dddd.", ""}));
    // One segment takes it all; no times at all shares evenly.
    EXPECT_EQ(ReferenceMapping::map(even, {0.0}, 10.0),
              (QStringList{"Aaaa bbbb. Cccc dddd. Eeee ffff. Gggg hhhh. Iiii jjjj."}));
    EXPECT_EQ(ReferenceMapping::map(even, {0.0, 0.0, 0.0}, 0.0).join(u'|'),
              "Aaaa bbbb. Cccc dddd.|Eeee ffff.|Gggg hhhh. Iiii jjjj.");
}

TEST(ReferenceMapping, EightHundredSentencesOverSevenHundredTwentySegmentsDoNotDrift)
{
    QStringList lines;
    for (int i = 0; i < 800; ++i)
        lines.append(QStringLiteral("Sentence %1.").arg(i % 10)); // all eleven characters
    QList<double> starts;
    for (int i = 0; i < 720; ++i)
        starts.append(i * 5.0);
    const QStringList texts = ReferenceMapping::map(plain(lines), starts, 3600.0);
    ASSERT_EQ(texts.size(), 720);
    // Wherever a segment ends, the sentences dealt out so far are within one
    // of where the time puts them.
    qsizetype dealt = 0;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        dealt += texts[i].count(u'.');
        EXPECT_LE(std::abs(dealt - 800.0 * (i + 1) / 720.0), 0.5) << "segment " << i;
    }
    EXPECT_EQ(dealt, 800);
}
