// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <initializer_list>

// How well two colours read against each other, as the accessibility
// guidelines measure it: from 1 (the same) to 21 (black on white).
namespace ColorContrast {

// Relative luminance of an sRGB colour, 0 for black to 1 for white.
double luminance(const QColor& color);
double ratio(const QColor& a, const QColor& b);
// Of `candidates`, the one that reads best on `background`.
QColor bestOn(const QColor& background, std::initializer_list<QColor> candidates);

} // namespace ColorContrast
