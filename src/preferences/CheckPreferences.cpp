// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/CheckPreferences.h"

#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "preferences/StoredValue.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

double readTypoWeight(const Defaults& store, double fallback)
{
    const std::optional<double> d = storedNumber(store, PreferenceKeys::TypoWeight);
    if (!d)
        return fallback;
    // Clamped first: beside a huge value every weight is equally far.
    const double wanted = std::clamp(*d, TypoWeights.front(), TypoWeights.back());
    double nearest = TypoWeights.front();
    for (double weight : TypoWeights) {
        if (std::abs(wanted - weight) < std::abs(wanted - nearest))
            nearest = weight;
    }
    return nearest;
}

} // namespace

CheckOptions storedCheckOptions(const Defaults& store)
{
    const CheckOptions defaults;
    CheckOptions options;
    options.typoWeight = readTypoWeight(store, defaults.typoWeight);
    options.countCase = storedSwitch(store, PreferenceKeys::CountCase, defaults.countCase);
    options.countPunctuation =
        storedSwitch(store, PreferenceKeys::CountPunctuation, defaults.countPunctuation);
    return options;
}

bool storedCheckAsIType(const Defaults& store)
{
    return storedSwitch(store, PreferenceKeys::CheckAsIType, false);
}
