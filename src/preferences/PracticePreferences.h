// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Defaults;

// The practice loop's settings. With every one at its default, playback is
// what it was without them.
struct PracticeOptions
{
    double repeatGap = 0.0;          // seconds of silence after each repetition
    bool repeatUntilMovedOn = false; // repeat until a navigation key, whatever the count
    bool slowerFirst = false;        // the first repetition at a slower rate
    double rewindOnResume = 0.0;     // seconds Play after a pause steps back
    bool holdToPlay = false;         // the play/pause key plays only while held
    double hardThreshold = 0.8;      // a last score below this makes a segment hard

    bool operator==(const PracticeOptions&) const = default;
};

inline constexpr double MaxRepeatGap = 10.0;
inline constexpr double RepeatGapStep = 0.5;
inline constexpr double MaxRewindOnResume = 5.0;

// The settings as the store holds them. A value that cannot be read (a
// hand-edited file, another type under the key) is the setting's default; a
// number out of range is the nearest end of it, and a gap between the steps
// the nearest step, so the preferences window and playback always agree on
// what is in force.
PracticeOptions storedPracticeOptions(const Defaults& store);
