// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

// The named system colours the views are drawn with. Where the desktop has a
// say (the window background) the palette answers; the others are fixed.
namespace NamedColors {

QColor windowBackground(); // the palette's Window colour
QColor white();
QColor red();         // 1, 0, 0
QColor darkGray();    // a third grey
QColor gray();        // half grey
QColor systemGreen(); // 52, 199, 89
QColor systemBlue();  // 0, 122, 255

} // namespace NamedColors
