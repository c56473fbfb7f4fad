// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <cmath>

// Whether light ink reads better than dark ink on a background of this
// colour: its relative luminance (as the WCAG contrast ratio measures it) is
// below the point where white and black contrast with it equally.
inline bool needsLightInk(const QColor& background)
{
    auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const QColor rgb = background.toRgb();
    const double luminance =
        0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) + 0.0722 * linear(rgb.blueF());
    return luminance < 0.179;
}
