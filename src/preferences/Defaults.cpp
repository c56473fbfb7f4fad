// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/Defaults.h"

#include <QMutexLocker>
#include <limits>

namespace {

// The INI backend hands back scalars as strings after a reload, and in-process
// writes as their own types: both must read the same way.
double toDouble(const QVariant& v)
{
    bool ok = false;
    double d = 0.0;
    if (v.typeId() == QMetaType::QString || v.typeId() == QMetaType::QByteArray)
        d = v.toString().trimmed().toDouble(&ok);
    else if (v.typeId() == QMetaType::Bool)
        return v.toBool() ? 1.0 : 0.0;
    else
        d = v.toDouble(&ok);
    return ok ? d : 0.0;
}

bool toBool(const QVariant& v)
{
    if (v.typeId() == QMetaType::Bool)
        return v.toBool();
    if (v.typeId() == QMetaType::QString || v.typeId() == QMetaType::QByteArray) {
        const QString s = v.toString().trimmed().toLower();
        if (s == QLatin1String("true") || s == QLatin1String("yes"))
            return true;
        if (s == QLatin1String("false") || s == QLatin1String("no"))
            return false;
    }
    return toDouble(v) != 0.0;
}

} // namespace

Defaults& Defaults::standard()
{
    static Defaults store(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                      QStringLiteral("Kelmora"),
                                                      QStringLiteral("Kelmora")));
    return store;
}

Defaults::Defaults(const QString& iniPath)
    : Defaults(std::make_unique<QSettings>(iniPath, QSettings::IniFormat))
{
}

Defaults::Defaults(std::unique_ptr<QSettings> settings) : m_settings(std::move(settings)) {}

Defaults::~Defaults()
{
    m_settings->sync();
}

QString Defaults::fileName() const
{
    QMutexLocker lock(&m_mutex);
    return m_settings->fileName();
}

void Defaults::registerDefaults(const QVariantMap& values)
{
    QMutexLocker lock(&m_mutex);
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        m_registered.insert(it.key(), it.value());
}

QVariant Defaults::objectForKey(const QString& key) const
{
    QMutexLocker lock(&m_mutex);
    const QVariant user = m_settings->value(key);
    if (user.isValid())
        return user;
    return m_registered.value(key);
}

bool Defaults::hasUserValue(const QString& key) const
{
    QMutexLocker lock(&m_mutex);
    return m_settings->contains(key);
}

double Defaults::doubleForKey(const QString& key) const
{
    const QVariant v = objectForKey(key);
    return v.isValid() ? toDouble(v) : 0.0;
}

float Defaults::floatForKey(const QString& key) const
{
    return static_cast<float>(doubleForKey(key));
}

qint64 Defaults::integerForKey(const QString& key) const
{
    const double d = doubleForKey(key);
    // Out-of-range values saturate rather than overflow.
    if (!(d == d))
        return 0;
    if (d >= 9.2e18)
        return std::numeric_limits<qint64>::max();
    if (d <= -9.2e18)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(d);
}

bool Defaults::boolForKey(const QString& key) const
{
    const QVariant v = objectForKey(key);
    return v.isValid() && toBool(v);
}

QString Defaults::stringForKey(const QString& key) const
{
    // Numbers read as their text; data, lists and absent values as empty.
    const QVariant v = objectForKey(key);
    switch (v.typeId()) {
    case QMetaType::QString:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Bool:
        return v.toString();
    default:
        return {};
    }
}

QByteArray Defaults::dataForKey(const QString& key) const
{
    const QVariant v = objectForKey(key);
    return v.typeId() == QMetaType::QByteArray ? v.toByteArray() : QByteArray();
}

void Defaults::setObject(const QVariant& value, const QString& key)
{
    QMutexLocker lock(&m_mutex);
    m_settings->setValue(key, value);
}

void Defaults::setDouble(double value, const QString& key)
{
    setObject(value, key);
}

void Defaults::setInteger(qint64 value, const QString& key)
{
    setObject(value, key);
}

void Defaults::setBool(bool value, const QString& key)
{
    setObject(value, key);
}

void Defaults::removeObject(const QString& key)
{
    QMutexLocker lock(&m_mutex);
    m_settings->remove(key);
}

bool Defaults::synchronize()
{
    QMutexLocker lock(&m_mutex);
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}
