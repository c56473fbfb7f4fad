// SPDX-License-Identifier: GPL-3.0-or-later
#include "align/PauseSnapper.h"

#include "audio/Loudness.h"
#include "audio/Segmentation.h"

#include <algorithm>
#include <cmath>

PauseSnapper::PauseSnapper(const QList<float>& loudness, double duration) : m_speechEnd(duration)
{
    if (loudness.isEmpty())
        return;
    const Loudness::Statistics stats = Loudness::statistics(loudness);
    // Below -80 dB throughout: a silent file, with nothing to place.
    if (stats.max < 1e-4f)
        return;
    constexpr int kMediumSensitivity = 1;
    const float threshold =
        Segmentation::adaptiveThreshold(stats.average, stats.stdDev, stats.max, kMediumSensitivity);
    const qsizetype n = loudness.size();
    const auto shortest = qsizetype(std::lround(kShortestPause / kFrameSeconds));
    qsizetype firstLoud = -1, lastLoud = -1;
    qsizetype runStart = -1;
    for (qsizetype i = 0; i <= n; ++i) {
        const bool quiet = i < n && threshold > loudness[i];
        if (i < n && !quiet) {
            if (firstLoud < 0)
                firstLoud = i;
            lastLoud = i;
        }
        if (quiet && runStart < 0)
            runStart = i;
        if (!quiet && runStart >= 0) {
            // Runs at either end are the lead-in and the tail, not pauses
            // between sentences.
            if (i - runStart >= shortest && runStart > 0 && i < n)
                m_pauses.append({double(runStart) * kFrameSeconds, double(i) * kFrameSeconds});
            runStart = -1;
        }
    }
    if (firstLoud < 0)
        return;
    m_hasSpeech = true;
    m_speechStart = std::max(0.0, double(firstLoud) * kFrameSeconds - kSpeechMargin);
    m_speechEnd = std::min(duration, double(lastLoud + 1) * kFrameSeconds + kSpeechMargin);
}

PauseSnapper::Snapped PauseSnapper::snap(double estimate) const
{
    // The pauses are in order: the nearest is around the first that ends
    // after the estimate.
    const auto after = std::lower_bound(m_pauses.cbegin(), m_pauses.cend(), estimate,
                                        [](const Pause& p, double t) { return p.end < t; });
    const Pause* best = nullptr;
    double bestDistance = kSearchRadius;
    auto consider = [&](const Pause& p) {
        const double d = estimate < p.start ? p.start - estimate
                         : estimate > p.end ? estimate - p.end
                                            : 0.0;
        if (d <= bestDistance &&
            (!best || d < bestDistance ||
             std::abs(p.middle() - estimate) < std::abs(best->middle() - estimate))) {
            best = &p;
            bestDistance = d;
        }
    };
    if (after != m_pauses.cend())
        consider(*after);
    if (after != m_pauses.cbegin())
        consider(*(after - 1));
    if (after != m_pauses.cend() && after + 1 != m_pauses.cend())
        consider(*(after + 1));
    if (!best)
        return {estimate, true};
    return {best->middle(), std::abs(best->middle() - estimate) > kCertainMove};
}
