// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/AnalysisPlan.h"

#include <algorithm>

AnalysisPlan AnalysisPlan::make(int64_t expectedFrames, uint32_t frameLength, double sampleRate,
                                int parts)
{
    AnalysisPlan plan;
    plan.m_frameLength = std::max<int64_t>(frameLength, 1);
    plan.m_expectedFrames = std::max<int64_t>(expectedFrames, 0);
    const auto minPart = std::max<int64_t>(static_cast<int64_t>(kMinPartSeconds * sampleRate), 1);
    const int64_t most = std::max<int64_t>(expectedFrames, 0) / minPart;
    const auto count = static_cast<int>(
        std::clamp<int64_t>(std::min(parts, kMaxParts), 1, std::max<int64_t>(most, 1)));
    const int64_t analysisFrames = std::max<int64_t>(expectedFrames, 0) / plan.m_frameLength;
    for (int k = 1; k < count; ++k) {
        const int64_t border = analysisFrames * k / count * plan.m_frameLength;
        if (border > plan.m_borders.last())
            plan.m_borders.append(border);
    }
    return plan;
}
