// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/LrcLine.h"

#include <algorithm>
#include <cmath>

namespace Lrc {

QString formatLine(double seconds, const QString& text)
{
    // A start is never negative nor days long; the bounds only keep the
    // conversions below defined.
    seconds = std::isnan(seconds) ? 0.0 : std::clamp(seconds, 0.0, 1e12);
    constexpr double kTicksPerSecond = 1e10;
    constexpr long long kTicksPerMillisecond = 10'000'000;
    double whole = std::floor(seconds);
    double ticks = std::round((seconds - whole) * kTicksPerSecond);
    if (ticks >= kTicksPerSecond) {
        whole += 1.0;
        ticks = 0.0;
    }
    const auto wholeSeconds = static_cast<long long>(whole);
    const auto milliseconds = static_cast<long long>(ticks) / kTicksPerMillisecond;
    return QString::asprintf("[%02lld:%02lld.%03lld]", wholeSeconds / 60, wholeSeconds % 60,
                             milliseconds) +
           text;
}

} // namespace Lrc
