// SPDX-License-Identifier: GPL-3.0-or-later
// The cutting's edits at their limits: parts shorter than a tenth of a second,
// the frame grid, the caret at the ends of a row, starts kept off their
// neighbours, the first and the last segment.

#include "transcript/LessonCutting.h"

#include <gtest/gtest.h>

using namespace CuttingEdits;

namespace {

// 0-4 s, 4-4.15 s, 4.15-10 s.
LessonCutting threeSegments()
{
    return LessonCutting{{{0.0, 4.0}, {4.0, 0.15}, {4.15, 5.85}}, {"one two", "", "three"}};
}

} // namespace

TEST(LessonCutting, SplitKeepsPartsLongEnoughOnTheFrameAndCutsTheTextAtTheCaret)
{
    const LessonCutting c = threeSegments();
    struct Case
    {
        qsizetype index;
        double at;
        std::optional<qsizetype> caret;
        bool done;
        double boundary;
        QStringList texts;
    };
    const Case cases[] = {
        {0, 2.011, std::nullopt, true, 2.02, {"one two", ""}},
        {0, 2.0, 3, true, 2.0, {"one", "two"}},
        {0, 2.0, 0, true, 2.0, {"one two", ""}}, // the caret at an end cuts no text
        {0, 2.0, 7, true, 2.0, {"one two", ""}},
        {0, 0.1, std::nullopt, true, 0.1, {"one two", ""}},
        {0, 0.08, std::nullopt, false, 0, {}},
        {0, 3.92, std::nullopt, false, 0, {}},
        {1, 4.07, std::nullopt, false, 0, {}}, // under 0.2 s: no split anywhere
        {2, 9.9, std::nullopt, true, 9.9, {"three", ""}},
        {3, 5.0, std::nullopt, false, 0, {}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(testing::Message() << k.index << " at " << k.at);
        const std::optional<LessonCutting> r = split(c, k.index, k.at, k.caret);
        ASSERT_EQ(r.has_value(), k.done);
        if (!r)
            continue;
        ASSERT_EQ(r->segments.size(), 4);
        EXPECT_NEAR(r->segments[k.index + 1].start, k.boundary, 1e-9);
        EXPECT_NEAR(r->segments[k.index].end(), k.boundary, 1e-9);
        EXPECT_NEAR(r->segments[k.index + 1].end(), c.segments[k.index].end(), 1e-9);
        EXPECT_EQ(r->texts.mid(k.index, 2), k.texts);
    }
}

TEST(LessonCutting, MergeAndMoveStayInsideTheirNeighbours)
{
    const LessonCutting c = threeSegments();
    const std::optional<LessonCutting> merged = mergeWithNext(c, 1);
    ASSERT_TRUE(merged);
    EXPECT_EQ(merged->texts, (QStringList{"one two", "three"}));
    EXPECT_EQ(merged->segments[1], (Segment{4.0, 6.0}));
    EXPECT_EQ(mergeWithNext(c, 0)->texts[0], "one two");
    EXPECT_FALSE(mergeWithNext(c, 2));
    EXPECT_FALSE(mergeWithNext(c, -1));

    struct Case
    {
        qsizetype index;
        double to;
        std::optional<double> start; // none: nothing moves
    };
    const Case cases[] = {
        {2, 6.013, 6.02},
        {2, 1.0, 4.1}, // no nearer than 0.1 s to the previous start
        {1, 0.05, 0.1},
        {1, 9.0, 4.04}, // the next start is 4.15
        {0, 1.0, std::nullopt},
        {2, 20.0, 9.9},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(testing::Message() << k.index << " to " << k.to);
        const std::optional<LessonCutting> r = moveStart(c, k.index, k.to);
        ASSERT_EQ(r.has_value(), k.start.has_value());
        if (!r)
            continue;
        EXPECT_NEAR(r->segments[k.index].start, *k.start, 1e-9);
        EXPECT_NEAR(r->segments[k.index - 1].end(), *k.start, 1e-9);
        EXPECT_NEAR(r->segments[k.index].end(), c.segments[k.index].end(), 1e-9);
        EXPECT_EQ(r->texts, c.texts);
    }
    EXPECT_EQ(segmentAt(c.segments, 4.1), 1);
    EXPECT_EQ(segmentAt(c.segments, 10.0), 2);
    EXPECT_EQ(segmentAt(c.segments, 10.5), -1);

    // Where each segment went: merged ones to the same segment, a split one to
    // its longer part, and back again with the undo.
    EXPECT_EQ(carriedTo(c.segments, merged->segments), (QList<qsizetype>{0, 1, 1}));
    const std::optional<LessonCutting> cut = split(c, 2, 7.0);
    ASSERT_TRUE(cut);
    EXPECT_EQ(carriedTo(c.segments, cut->segments), (QList<qsizetype>{0, 1, 3}));
    EXPECT_EQ(carriedTo(cut->segments, c.segments), (QList<qsizetype>{0, 1, 2, 2}));
    EXPECT_EQ(carriedTo(c.segments, moveStart(c, 2, 5.0)->segments), (QList<qsizetype>{0, 1, 2}));
}

TEST(LessonCutting, CutAtStartsCarriesEachRowToTheSegmentHoldingItsMidpoint)
{
    // Rows' midpoints: 2.0 ("one two"), 4.075 (empty), 7.075 ("three").
    const LessonCutting c = threeSegments();
    struct Case
    {
        const char* what;
        QList<double> starts;
        QList<double> cut;
        QStringList texts;
        QList<qsizetype> from;
    };
    const Case cases[] = {
        {"one row each", {0.3, 2.5, 6.011}, {0.0, 2.5, 6.02}, {"one two", "", "three"}, {0, 1, 2}},
        {"two rows joined", {0.0, 8.0}, {0.0, 8.0}, {"one two three", ""}, {0, 1}},
        {"a sentence before the first midpoint",
         {0.5, 1.0, 3.0},
         {0.0, 1.0, 3.0},
         {"", "one two", "three"},
         {0, 1, 2}},
        {"starts too close, too late or past the end",
         {0.0, 0.05, 4.0, 4.06, 9.95, 12.0},
         {0.0, 4.0},
         {"one two", "three"},
         {0, 2}},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.what);
        QList<qsizetype> from;
        const std::optional<LessonCutting> r = cutAt(c, k.starts, &from);
        ASSERT_TRUE(r);
        ASSERT_EQ(r->segments.size(), k.cut.size());
        for (qsizetype i = 0; i < k.cut.size(); ++i) {
            EXPECT_NEAR(r->segments[i].start, k.cut[i], 1e-9);
            const double end = i + 1 < k.cut.size() ? k.cut[i + 1] : 10.0;
            EXPECT_NEAR(r->segments[i].end(), end, 1e-9);
        }
        EXPECT_EQ(r->texts, k.texts);
        EXPECT_EQ(from, k.from);
    }
    EXPECT_FALSE(cutAt(c, {}));
    EXPECT_FALSE(cutAt(LessonCutting{}, {1.0}));
}
