// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/Segmentation.h"

namespace Segmentation {

int silentFramesNeeded(int sensitivity)
{
    switch (sensitivity) {
    case 0:
        return 3;
    case 2:
        return 1;
    default:
        return 2;
    }
}

float thresholdMultiplier(int sensitivity)
{
    switch (sensitivity) {
    case 0:
        return 0.7f;
    case 2:
        return 0.3f;
    default:
        return 0.5f;
    }
}

const char* sensitivityName(int sensitivity)
{
    static const char* const names[] = {"Low", "Medium", "High"};
    if (sensitivity < 0 || sensitivity > 2)
        return "Unknown";
    return names[sensitivity];
}

float adaptiveThreshold(float averageRMS, float stdDev, float maxRMS, int sensitivity)
{
    const float candidate = averageRMS - stdDev * thresholdMultiplier(sensitivity);
    const float floor = static_cast<float>(static_cast<double>(maxRMS) * 0.01);
    const float ceiling = maxRMS * 0.5f;
    return std::min(std::max(floor, candidate), ceiling);
}

QList<Silence> detectSilences(const QList<float>& rmsValues, float threshold, int sensitivity)
{
    const int needed = silentFramesNeeded(sensitivity);
    QList<Silence> silences;
    qsizetype quietRun = 0;
    bool inSilence = false;
    qsizetype start = 0;
    const qsizetype n = rmsValues.size();

    for (qsizetype i = 0; i < n; ++i) {
        if (threshold > rmsValues[i]) {
            ++quietRun;
            if (!inSilence && quietRun >= needed) {
                // Date the silence back to the first quiet frame of the run.
                start = i + 1 - needed;
                inSilence = true;
            }
        } else {
            if (inSilence) {
                const qsizetype len = i - start;
                const float d = static_cast<float>(len) * kFrameDuration;
                if (d >= kShortestInteriorSilence) {
                    silences.append({static_cast<float>(start) * kFrameDuration, d,
                                     static_cast<float>(len / 2 + start) * kFrameDuration});
                }
            }
            quietRun = 0;
            inSilence = false;
        }
    }
    if (inSilence) {
        // The end of the file needs far less quiet than its interior. This
        // length is reckoned in 64-bit, so that five frames make exactly 0.1 s
        // (in 32-bit they fall just short of it).
        const qsizetype len = n - start;
        const double d = static_cast<double>(len) * 0.02;
        if (d >= kShortestTrailingSilence) {
            silences.append({static_cast<float>(start) * kFrameDuration, static_cast<float>(d),
                             static_cast<float>(len / 2 + start) * kFrameDuration});
        }
    }
    return silences;
}

SegmentList cutAtMidpoints(const QList<Silence>& silences, qsizetype frameCount,
                           double minSegmentDuration, double duration)
{
    SegmentList segments;
    if (silences.isEmpty()) {
        segments.append({0.0, static_cast<float>(frameCount) * kFrameDuration});
        return segments;
    }
    float previousCut = 0.0f;
    for (const Silence& silence : silences) {
        const float mid = silence.midPoint;
        const float length = mid - previousCut;
        if (length >= minSegmentDuration && duration > mid) {
            segments.append({previousCut, length});
            previousCut = mid;
        }
    }
    return segments;
}

void applyLoadFixups(SegmentList& segments, double duration)
{
    if (segments.isEmpty())
        return;
    Segment& first = segments.first();
    first = {0.0, first.start + first.duration};
    Segment& last = segments.last();
    last = {last.start, duration - last.start - kTrimmedFromLastSegment};
}

} // namespace Segmentation
