// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

class Defaults;

// Reads that tell "unreadable" apart from a real value, which Defaults' typed
// reads do not: they turn anything unreadable into 0 or false.

// A finite number stored as a number or as text (the INI file hands numbers
// back as text); nothing otherwise.
std::optional<double> storedNumber(const Defaults& store, const char* key);
// A switch stored as a boolean, a number or "true"/"yes"/"1" and
// "false"/"no"/"0"; `fallback` for anything else.
bool storedSwitch(const Defaults& store, const char* key, bool fallback);
