// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMutex>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <memory>

// The per-user defaults store: user values persist in an INI file, and a
// registration layer held in memory answers for every key the user has not set.
// Typed reads never fail: a missing or unreadable value reads as 0, NO or an
// empty value, so a hand-edited or stale settings file cannot break a reader.
class Defaults
{
public:
    // The store in the user's configuration directory.
    static Defaults& standard();

    // A store backed by the given INI file (tests use a temporary one).
    explicit Defaults(const QString& iniPath);
    ~Defaults();
    Defaults(const Defaults&) = delete;
    Defaults& operator=(const Defaults&) = delete;

    QString fileName() const;

    // Registered values are never written to disk; a later registration of the
    // same key replaces the earlier one.
    void registerDefaults(const QVariantMap& values);

    // The user's value, else the registered one, else an invalid QVariant.
    QVariant objectForKey(const QString& key) const;
    bool hasUserValue(const QString& key) const;

    double doubleForKey(const QString& key) const;
    float floatForKey(const QString& key) const;
    qint64 integerForKey(const QString& key) const;
    bool boolForKey(const QString& key) const;
    QString stringForKey(const QString& key) const;
    QByteArray dataForKey(const QString& key) const;

    void setObject(const QVariant& value, const QString& key);
    void setDouble(double value, const QString& key);
    void setInteger(qint64 value, const QString& key);
    void setBool(bool value, const QString& key);
    void removeObject(const QString& key);

    // Writes pending changes to disk; false when the file could not be written.
    bool synchronize();

private:
    explicit Defaults(std::unique_ptr<QSettings> settings);

    mutable QMutex m_mutex;
    std::unique_ptr<QSettings> m_settings;
    QVariantMap m_registered;
};
