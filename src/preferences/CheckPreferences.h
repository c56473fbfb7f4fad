// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/Checker.h"

#include <array>

class Defaults;

// The check's settings as the store holds them. A value that cannot be read
// (a hand-edited file, another type under the key) is the setting's default;
// a typo weight between the three offered is the nearest of them, so the
// preferences window and the check always agree on what is in force.
CheckOptions storedCheckOptions(const Defaults& store);
bool storedCheckAsIType(const Defaults& store);

// The typo weights the preferences offer, lightest first.
inline constexpr std::array<double, 3> TypoWeights = {0.0, 0.5, 1.0};
