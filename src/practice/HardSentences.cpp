// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/HardSentences.h"

#include <algorithm>

namespace HardSentences {

bool isDue(const SegmentPractice& segment, QDate today)
{
    if (segment.checkDates.isEmpty() || !today.isValid())
        return false;
    const QDate first = segment.checkDates.front();
    const QDate last = segment.checkDates.back();
    return std::any_of(ReviewDays.cbegin(), ReviewDays.cend(), [&](int days) {
        const QDate review = first.addDays(days);
        return review <= today && last < review;
    });
}

bool isHard(const SegmentPractice& segment, double threshold, QDate today)
{
    return (segment.last && *segment.last < threshold) || isDue(segment, today);
}

QList<qsizetype> hardSegments(const PracticeRecord& record, qsizetype segmentCount,
                              double threshold, QDate today)
{
    QList<qsizetype> hard;
    // Segments past the record's end were never checked.
    const qsizetype end = std::min(segmentCount, record.segmentCount());
    for (qsizetype i = 0; i < end; ++i) {
        if (isHard(record.segment(i), threshold, today))
            hard.append(i);
    }
    return hard;
}

std::optional<qsizetype> nextHardSegment(qsizetype from, const PracticeRecord& record,
                                         qsizetype segmentCount, double threshold, QDate today)
{
    const QList<qsizetype> hard = hardSegments(record, segmentCount, threshold, today);
    if (hard.isEmpty())
        return std::nullopt;
    const auto after = std::upper_bound(hard.cbegin(), hard.cend(), from);
    return after == hard.cend() ? hard.front() : *after;
}

qsizetype dueCount(const PracticeRecord& record, qsizetype segmentCount, QDate today)
{
    qsizetype count = 0;
    const qsizetype end = std::min(segmentCount, record.segmentCount());
    for (qsizetype i = 0; i < end; ++i)
        count += isDue(record.segment(i), today) ? 1 : 0;
    return count;
}

} // namespace HardSentences
