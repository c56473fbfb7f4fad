// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/PracticeRecord.h"

#include <QDate>
#include <QList>
#include <array>
#include <optional>

// Which segments of a lesson the learner should come back to: those whose
// last score is below a threshold, and those due for review.
//
// The review schedule counts from the day of a segment's first check: it
// comes due 1, 3 and 7 days after that day. A segment is due today when one
// of those days has arrived (it is today or earlier) and the segment has not
// been checked on or since that day. A missed review therefore stays due
// until the next check, one check settles every review day up to today, and
// after the 7-day review only a low score brings a segment back. A segment
// never checked is neither hard nor due.
namespace HardSentences {

inline constexpr std::array<int, 3> ReviewDays = {1, 3, 7};

bool isDue(const SegmentPractice& segment, QDate today);
bool isHard(const SegmentPractice& segment, double threshold, QDate today);

// The hard segments among the first `segmentCount`, in order.
QList<qsizetype> hardSegments(const PracticeRecord& record, qsizetype segmentCount,
                              double threshold, QDate today);
// The first hard segment after `from`, wrapping to the start of the lesson
// (`from` itself when it is the only one); `from` = -1 gives the first.
// Nothing when no segment is hard.
std::optional<qsizetype> nextHardSegment(qsizetype from, const PracticeRecord& record,
                                         qsizetype segmentCount, double threshold, QDate today);
// How many of the first `segmentCount` segments are due today.
qsizetype dueCount(const PracticeRecord& record, qsizetype segmentCount, QDate today);

} // namespace HardSentences
