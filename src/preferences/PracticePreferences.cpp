// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/PracticePreferences.h"

#include "preferences/PreferenceKeys.h"
#include "preferences/StoredValue.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

double readRange(const Defaults& store, const char* key, double low, double high, double fallback)
{
    const std::optional<double> d = storedNumber(store, key);
    return d ? std::clamp(*d, low, high) : fallback;
}

} // namespace

PracticeOptions storedPracticeOptions(const Defaults& store)
{
    using namespace PreferenceKeys;
    const PracticeOptions defaults;
    PracticeOptions options;
    const double gap = readRange(store, RepeatGap, 0.0, MaxRepeatGap, defaults.repeatGap);
    options.repeatGap = std::round(gap / RepeatGapStep) * RepeatGapStep;
    options.repeatUntilMovedOn =
        storedSwitch(store, RepeatUntilMovedOn, defaults.repeatUntilMovedOn);
    options.slowerFirst = storedSwitch(store, SlowerFirst, defaults.slowerFirst);
    options.rewindOnResume =
        readRange(store, RewindOnResume, 0.0, MaxRewindOnResume, defaults.rewindOnResume);
    options.holdToPlay = storedSwitch(store, HoldToPlay, defaults.holdToPlay);
    options.hardThreshold =
        readRange(store, HardSentenceThreshold, 0.0, 1.0, defaults.hardThreshold);
    return options;
}
