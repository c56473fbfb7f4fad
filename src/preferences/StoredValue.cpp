// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/StoredValue.h"

#include "preferences/Defaults.h"

#include <QVariant>
#include <cmath>

namespace {

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
    case QMetaType::QByteArray:
        d = v.toString().trimmed().toDouble(&ok);
        break;
    default:
        break;
    }
    if (!ok || !std::isfinite(d))
        return std::nullopt;
    return d;
}

} // namespace

std::optional<double> storedNumber(const Defaults& store, const char* key)
{
    return readNumber(store.objectForKey(QLatin1String(key)));
}

bool storedSwitch(const Defaults& store, const char* key, bool fallback)
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
