// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/HardSentences.h"

#include <gtest/gtest.h>

namespace {

const QDate Day0(2026, 3, 10);

// A segment checked on these days after Day0, the last check scoring `last`.
SegmentPractice checkedOn(const QList<int>& days, double last)
{
    PracticeRecord record;
    for (int day : days)
        record.recordCheck(0, last, Day0.addDays(day));
    return record.segment(0);
}

} // namespace

TEST(HardSentences, ALowLastScoreOrAReviewDayThatCameSinceTheLastCheck)
{
    const struct
    {
        QList<int> checked; // days after Day0
        double last;
        int today; // days after Day0
        bool due, hard;
    } cases[] = {
        {{}, 0.0, 5, false, false}, // never checked: nothing to come back to
        {{0}, 0.5, 0, false, true},
        {{0}, 0.8, 0, false, false}, // the threshold itself is good enough
        {{0}, 0.95, 1, true, true},  // the first review, a day later
        {{0, 1}, 0.95, 1, false, false},
        {{0, 1}, 0.95, 2, false, false},
        {{0, 1}, 0.95, 3, true, true},   // three days after the first check
        {{0}, 0.95, 5, true, true},      // a missed review stays due
        {{0, 5}, 0.95, 6, false, false}, // one check settles every review up to it
        {{0, 5}, 0.95, 7, true, true},
        {{0, 7}, 0.95, 8, false, false},
        {{0, 7}, 0.95, 40, false, false}, // after the last review only the score counts
        {{0, 7}, 0.6, 40, false, true},
        {{0}, 0.95, -3, false, false}, // a clock set back makes nothing due
    };
    for (const auto& c : cases) {
        const SegmentPractice segment =
            !c.checked.isEmpty() ? checkedOn(c.checked, c.last) : SegmentPractice();
        SCOPED_TRACE(testing::Message()
                     << c.checked.size() << " checks, last " << c.last << ", today +" << c.today);
        EXPECT_EQ(HardSentences::isDue(segment, Day0.addDays(c.today)), c.due);
        EXPECT_EQ(HardSentences::isHard(segment, 0.8, Day0.addDays(c.today)), c.hard);
    }
}

TEST(HardSentences, StepsThroughTheHardSegmentsInOrderAndWraps)
{
    // Scores of segments 0..5 checked on Day0; 6 and 7 never checked.
    PracticeRecord record;
    const double scores[] = {0.9, 0.3, 1.0, 0.79, 0.8, 0.1};
    for (int i = 0; i < 6; ++i)
        record.recordCheck(i, scores[i], Day0);
    record.recordCheck(2, 1.0, Day0.addDays(1)); // 2 has had its first review

    using namespace HardSentences;
    EXPECT_EQ(hardSegments(record, 8, 0.8, Day0), (QList<qsizetype>{1, 3, 5}));
    EXPECT_EQ(hardSegments(record, 4, 0.8, Day0), (QList<qsizetype>{1, 3})); // a shorter lesson
    EXPECT_EQ(hardSegments(record, 8, 0.8, Day0.addDays(1)), (QList<qsizetype>{0, 1, 3, 4, 5}));
    EXPECT_EQ(dueCount(record, 8, Day0), 0);
    EXPECT_EQ(dueCount(record, 8, Day0.addDays(1)), 5);
    EXPECT_EQ(dueCount(record, 8, Day0.addDays(3)), 6);

    const struct
    {
        qsizetype from;
        std::optional<qsizetype> next;
    } steps[] = {{-1, 1}, {0, 1}, {1, 3}, {3, 5}, {4, 5}, {5, 1}, {7, 1}};
    for (const auto& s : steps) {
        SCOPED_TRACE(s.from);
        EXPECT_EQ(nextHardSegment(s.from, record, 8, 0.8, Day0), s.next);
    }
    PracticeRecord one;
    one.recordCheck(2, 0.0, Day0);
    EXPECT_EQ(nextHardSegment(2, one, 8, 0.8, Day0), 2); // the only one comes round again
    EXPECT_EQ(nextHardSegment(0, record, 8, 0.0, Day0), std::nullopt);
}
