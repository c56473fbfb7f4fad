// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ColorContrast.h"

#include <algorithm>
#include <cmath>

namespace ColorContrast {

namespace {
double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}
} // namespace

double luminance(const QColor& color)
{
    const QColor c = color.toRgb();
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

double ratio(const QColor& a, const QColor& b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor bestOn(const QColor& background, std::initializer_list<QColor> candidates)
{
    QColor best;
    double bestRatio = 0;
    for (const QColor& c : candidates)
        if (const double r = ratio(c, background); r > bestRatio) {
            best = c;
            bestRatio = r;
        }
    return best;
}

} // namespace ColorContrast
