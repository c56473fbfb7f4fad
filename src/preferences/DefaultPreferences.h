// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>

class Defaults;

// Registers the built-in value of every key that has one. Registration is
// in memory only and is repeated at every start.
void regDefaultPreference(Defaults& store);

// The built-in look, also used where a stored value cannot be read and by the
// panel's reset.
namespace DefaultLook {
QColor tableBackgroundColor(); // RGB 18, 63, 124 of 255, opaque
QColor dictationTextColor();   // RGB 228, 223, 78 of 255, opaque
QFont dictationTextFont();     // "Menlo", 20 pt
} // namespace DefaultLook
