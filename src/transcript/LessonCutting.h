// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Segment.h"

#include <QStringList>
#include <optional>

// A lesson's cutting and its rows together: row i is segment i's typing. The
// learner's edits of the cutting (split, merge, a moved start) are functions
// from one cutting to the next, so an undo is putting the earlier one back.
// Segments follow each other without gaps: each ends where the next starts.
struct LessonCutting
{
    SegmentList segments;
    QStringList texts;

    friend bool operator==(const LessonCutting&, const LessonCutting&) = default;
};

namespace CuttingEdits {

// Boundaries sit on the analysis frame, and no part is shorter than this.
inline constexpr double kFrame = 0.02;
inline constexpr double kShortestPart = 0.1;

// The segment that holds `seconds` (the last one holds its end); -1 for none.
qsizetype segmentAt(const SegmentList& segments, double seconds);

// Segment `index` cut in two at `seconds`, rounded to the frame. With a
// caret inside the row's text (0 < caret < length) the text is cut there,
// the spaces at the cut trimmed; otherwise all of it stays in the first
// part. Nothing when either part would be shorter than kShortestPart.
std::optional<LessonCutting> split(const LessonCutting& cutting, qsizetype index, double seconds,
                                   std::optional<qsizetype> caret = std::nullopt);

// Segment `index` and the one after it as one, their texts joined with one
// space (an empty side adds none). Nothing for the last segment.
std::optional<LessonCutting> mergeWithNext(const LessonCutting& cutting, qsizetype index);

// Where segment `index` may start: at least kShortestPart after the previous
// start and before its own end's neighbour; the first segment stays at 0.
// Rounded to the frame inside those bounds.
double allowedStart(const SegmentList& segments, qsizetype index, double seconds);

// Segment `index` starting at allowedStart(seconds); the previous one ends
// there. Nothing for the first segment or when the start would not move.
std::optional<LessonCutting> moveStart(const LessonCutting& cutting, qsizetype index,
                                       double seconds);

// The lesson cut anew so that each of `starts` (seconds, in order) begins a
// segment, rounded to the frame: the first segment still begins where the
// cutting does and the last ends where it does. A start that would leave a
// part shorter than kShortestPart begins none. Each row's text goes to the
// new segment that holds its old segment's midpoint, several joined with one
// space in order (an empty one adds none). `from`, when given, gets for each
// new segment the index in `starts` of the start that begins it (the first
// segment's is 0). Nothing for an empty cutting or no starts.
std::optional<LessonCutting> cutAt(const LessonCutting& cutting, const QList<double>& starts,
                                   QList<qsizetype>* from = nullptr);

// Where each segment of `before` went in `after`: the new segment that
// overlaps it most (the earlier one on a tie), -1 when none does. A split's
// segment goes to its longer part, merged segments go to the same one, and a
// moved boundary leaves each segment where most of it still is.
QList<qsizetype> carriedTo(const SegmentList& before, const SegmentList& after);
} // namespace CuttingEdits
