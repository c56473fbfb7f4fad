// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Segment.h"

#include <QList>

// The arithmetic of segmentation, free of engine state so that it can be
// checked on hand-made loudness lists. Values keep the precision the
// segment boundaries depend on: loudness and silence times are 32-bit floats,
// durations and the minimum segment length 64-bit.
namespace Segmentation {

// Length of one analysis frame in seconds; index i of the loudness list
// stands for i * kFrameDuration.
inline constexpr float kFrameDuration = 0.02f;
inline constexpr float kShortestInteriorSilence = 0.5f;
inline constexpr double kShortestTrailingSilence = 0.1;
inline constexpr double kTrimmedFromLastSegment = 1.0;

// Quiet frames in a row needed before a silence opens.
int silentFramesNeeded(int sensitivity);
// Multiplier of the standard deviation subtracted from the mean loudness.
float thresholdMultiplier(int sensitivity);
// Name of a sensitivity level for the log: "Low", "Medium", "High".
const char* sensitivityName(int sensitivity);

// mean - sd * k, kept between 1% and 50% of the loudest frame (the ceiling
// wins, so a silent file gets 0 and no frame ever counts as quiet).
float adaptiveThreshold(float averageRMS, float stdDev, float maxRMS, int sensitivity);

// Runs of frames strictly below the threshold: at least 0.5 s inside the
// file, at least 0.1 s when the run reaches the end.
QList<Silence> detectSilences(const QList<float>& rmsValues, float threshold, int sensitivity);

// Cuts at silence midpoints. A midpoint closer than minSegmentDuration to
// the previous cut, or not before `duration`, is skipped. Without silences the
// whole list is one segment of frameCount * kFrameDuration.
SegmentList cutAtMidpoints(const QList<Silence>& silences, qsizetype frameCount,
                           double minSegmentDuration, double duration);

// The first segment reaches back to 0; the last ends one second before
// `duration` (zero or negative for a short tail, and stored so).
void applyLoadFixups(SegmentList& segments, double duration);

} // namespace Segmentation
