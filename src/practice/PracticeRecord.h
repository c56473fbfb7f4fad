// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>
#include <optional>

// What the learner did with one segment of a lesson.
struct SegmentPractice
{
    int checks = 0;
    int hints = 0;
    // Scores from 0 to 1; none before the first check.
    std::optional<double> best;
    std::optional<double> last;
    double secondsSpent = 0.0;
    // The days the segment was checked on, oldest first, each day once: the
    // review schedule needs days, not every check.
    QList<QDate> checkDates;

    bool isEmpty() const { return checks == 0 && hints == 0 && secondsSpent == 0.0; }
    bool operator==(const SegmentPractice&) const = default;
};

// A lesson's practice, segment by segment (by row index). A segment nothing
// was recorded for reads as an empty SegmentPractice.
class PracticeRecord
{
public:
    static constexpr int FormatVersion = 1;
    // Beyond any real lesson; keeps a stray index from growing the record
    // without bound.
    static constexpr qsizetype MaxSegments = 100000;

    qsizetype segmentCount() const { return m_segments.size(); }
    bool isEmpty() const;
    SegmentPractice segment(qsizetype index) const;

    // Each returns false, changing nothing, for an index outside
    // 0..MaxSegments-1 or a value that is not a finite number. A score is
    // clamped to 0..1; time below zero adds nothing.
    bool recordCheck(qsizetype index, double score, QDate day);
    bool recordHint(qsizetype index);
    bool addTime(qsizetype index, double seconds);
    // The record for a new cutting, where segment i went to segment to[i]
    // (-1: nowhere). Segments that went to the same one are added up: their
    // checks, hints and time, the best of their bests, the later segment's
    // last score, and their check days.
    PracticeRecord remapped(const QList<qsizetype>& to) const;

    // UTF-8 JSON: {"version": 1, "segments": [{"checks", "hints", "best",
    // "last", "seconds", "checkDates": ["yyyy-MM-dd", ...]}, ...]}; "best" and
    // "last" are left out before the first check.
    QByteArray toJson() const;
    // Nothing, and `error` says why, for anything but a whole, consistent
    // record of this format version.
    static std::optional<PracticeRecord> fromJson(const QByteArray& json, QString* error = nullptr);

    bool operator==(const PracticeRecord&) const = default;

private:
    SegmentPractice* grownTo(qsizetype index);

    QList<SegmentPractice> m_segments;
};
