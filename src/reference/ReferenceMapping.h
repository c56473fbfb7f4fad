// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Segment.h"
#include "reference/ReferenceText.h"

#include <QList>
#include <QStringList>

// Which part of a reference text each segment of the lesson holds.
//
// A timed unit belongs to the segment that holds its midpoint (one before
// the first segment to the first); the units of a segment are joined with a
// space in time order.
//
// Untimed text with exactly one line per segment gives line i to segment i.
// Otherwise it is cut into sentences (Unicode sentence boundaries, never
// across lines) and dealt out in order so that each segment's share of the
// characters comes as close as it can to its share of the duration. The
// shares are matched where each segment ends: the characters before that
// end against the time before it. Matching each share on its own would let
// rounding pile up: with 800 even sentences over 720 even segments, every
// placement of the 80 doubled segments matches equally well, and the text
// could drift by 80 sentences against the sound. Matched at the ends, no
// error carries from one segment to the next. Each end goes to the sentence
// boundary nearest its target; the targets rise, so the nearest boundaries
// rise with them, which makes the choices one by one the best placement of
// all: O(segments × log sentences) after the cutting.
class ReferenceMapping
{
public:
    // One string per segment, empty where the reference has nothing. The
    // starts, in seconds, must rise; the last segment runs to `audioDuration`.
    static QStringList map(const ReferenceText& reference, const QList<double>& segmentStarts,
                           double audioDuration);
    // The same with the segments' starts, the last one's end as the duration.
    static QStringList map(const ReferenceText& reference, const SegmentList& segments);

    // The sentences of untimed units, in order, trimmed, none empty.
    static QStringList sentences(const QList<ReferenceUnit>& units);
};
