// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMetaType>

// A stretch of the recording, in seconds from the start of the file. Segments
// form an ordered list indexed from 0; index i is also row i of the table and
// line i of the transcript.
struct Segment
{
    double start = 0.0;
    double duration = 0.0;

    double end() const { return start + duration; }
    friend bool operator==(const Segment&, const Segment&) = default;
};

// A run of quiet analysis frames found by silence detection. Its midpoint is
// where the recording is cut.
struct Silence
{
    float start = 0.0f;
    float duration = 0.0f;
    float midPoint = 0.0f;
    friend bool operator==(const Silence&, const Silence&) = default;
};

using SegmentList = QList<Segment>;

Q_DECLARE_METATYPE(Segment)
Q_DECLARE_METATYPE(SegmentList)
