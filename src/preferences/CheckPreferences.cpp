// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/CheckPreferences.h"

#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QVariant>
#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// Defaults' typed reads turn anything unreadable into 0 or false, which for
// the typo weight is a real choice; these tell "unreadable" apart instead.
std::optional<double> readNumber(const QVariant& v)
{
    bool ok = false;
    double d = 0.0;
    switch (v.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        d = v.toDouble(&ok);
        break;
    case QMetaType::QString:
    case QMetaType::QByteArray: // the INI file hands numbers back as text
        d = v.toString().trimmed().toDouble(&ok);
        break;
    default:
        break;
    }
    if (!ok || !std::isfinite(d))
        return std::nullopt;
    return d;
}

bool readSwitch(const Defaults& store, const char* key, bool fallback)
{
    const QVariant v = store.objectForKey(QLatin1String(key));
    if (v.typeId() == QMetaType::Bool)
        return v.toBool();
    if (v.typeId() == QMetaType::QString || v.typeId() == QMetaType::QByteArray) {
        const QString s = v.toString().trimmed().toLower();
        if (s == QLatin1String("true") || s == QLatin1String("yes") || s == QLatin1String("1"))
            return true;
        if (s == QLatin1String("false") || s == QLatin1String("no") || s == QLatin1String("0"))
            return false;
        return fallback;
    }
    if (const std::optional<double> d = readNumber(v))
        return *d != 0.0;
    return fallback;
}

double readTypoWeight(const Defaults& store, double fallback)
{
    const std::optional<double> d =
        readNumber(store.objectForKey(QLatin1String(PreferenceKeys::TypoWeight)));
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
    options.countCase = readSwitch(store, PreferenceKeys::CountCase, defaults.countCase);
    options.countPunctuation =
        readSwitch(store, PreferenceKeys::CountPunctuation, defaults.countPunctuation);
    return options;
}

bool storedCheckAsIType(const Defaults& store)
{
    return readSwitch(store, PreferenceKeys::CheckAsIType, false);
}
