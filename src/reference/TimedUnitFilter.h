// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/SubtitleSyntax.h"

#include <QList>
#include <QString>

// The last step of reading a timed file: keeps the units that can be placed
// on the audio, in time order. Dropped, each with one log line naming the
// file and the place: a unit with a negative time, one that ends before it
// starts, one that starts at or after the end of the audio, one that repeats
// the unit before it exactly, and one the reader found a problem with.
// Overlapping units are kept: two voices at once are both heard, and each
// lands where its midpoint is.
namespace TimedUnitFilter {

// `duration` is the audio's length in seconds; 0 or less when unknown, and
// then no unit counts as past the end. Ends past the end of the audio are
// brought back to it. `place` names a unit's position for the log, with %1
// for its line ("line %1"). `firstDropReason`, when given, receives why the
// first dropped unit went (for the error when none is left).
QList<ReferenceUnit> keepUsable(SubtitleSyntax::ParsedUnits units, double duration,
                                const QString& fileName, const QString& place,
                                QString* firstDropReason = nullptr);

} // namespace TimedUnitFilter
