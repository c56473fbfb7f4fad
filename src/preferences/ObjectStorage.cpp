// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ObjectStorage.h"

#include "common/Log.h"
#include "preferences/ArchivedObjects.h"
#include "preferences/Defaults.h"

#include <QVariant>

namespace {

// One family of the three operations: the archive and unarchive functions of
// a class and the word its log lines use.
template <typename T> struct Family
{
    const char* word;
    std::optional<QByteArray> (*archive)(const T&, QString*);
    std::optional<T> (*unarchive)(const QByteArray&, QString*);
};

const Family<QColor> kColor{"color", ArchivedObjects::archiveColor,
                            ArchivedObjects::unarchiveColor};
const Family<QFont> kFont{"font", ArchivedObjects::archiveFont, ArchivedObjects::unarchiveFont};
const Family<KeyboardShortcut> kShortcut{"keyboardShortcut",
                                         ArchivedObjects::archiveKeyboardShortcut,
                                         ArchivedObjects::unarchiveKeyboardShortcut};

template <typename T>
bool registerObject(Defaults& store, const Family<T>& family, const QString& key, const T& object)
{
    QString error;
    const std::optional<QByteArray> data = family.archive(object, &error);
    if (!data) {
        qCInfo(lcPreferences, "Error archiving %s for key %s: %s", family.word, qPrintable(key),
               qPrintable(error));
        return false;
    }
    store.registerDefaults({{key, *data}});
    return true;
}

template <typename T>
bool setObject(Defaults& store, const Family<T>& family, const QString& key, const T& object)
{
    QString error;
    const std::optional<QByteArray> data = family.archive(object, &error);
    if (!data) {
        qCInfo(lcPreferences, "Error archiving %s: %s", family.word, qPrintable(error));
        return false;
    }
    store.setObject(*data, key);
    store.synchronize();
    return true;
}

template <typename T>
std::optional<T> objectForKey(const Defaults& store, const Family<T>& family, const QString& key)
{
    const QVariant value = store.objectForKey(key);
    if (!value.isValid())
        return std::nullopt;
    QString error;
    std::optional<T> object;
    if (value.typeId() != QMetaType::QByteArray)
        error = QStringLiteral("the stored value is a %1, not data")
                    .arg(QString::fromLatin1(value.typeName()));
    else
        object = family.unarchive(value.toByteArray(), &error);
    if (!object)
        qCInfo(lcPreferences, "Error unarchiving %s: %s", family.word, qPrintable(error));
    return object;
}

} // namespace

ObjectStorage ObjectStorage::standard()
{
    return ObjectStorage(Defaults::standard());
}

bool ObjectStorage::registerColorForKey(const QString& key, const QColor& color)
{
    return registerObject(m_store, kColor, key, color);
}

bool ObjectStorage::setColor(const QColor& color, const QString& key)
{
    return setObject(m_store, kColor, key, color);
}

std::optional<QColor> ObjectStorage::colorForKey(const QString& key) const
{
    return objectForKey(m_store, kColor, key);
}

bool ObjectStorage::registerFontForKey(const QString& key, const QFont& font)
{
    return registerObject(m_store, kFont, key, font);
}

bool ObjectStorage::setFont(const QFont& font, const QString& key)
{
    return setObject(m_store, kFont, key, font);
}

std::optional<QFont> ObjectStorage::fontForKey(const QString& key) const
{
    return objectForKey(m_store, kFont, key);
}

bool ObjectStorage::registerKeyboardShortcutForKey(const QString& key,
                                                   const KeyboardShortcut& shortcut)
{
    return registerObject(m_store, kShortcut, key, shortcut);
}

bool ObjectStorage::setKeyboardShortcut(const KeyboardShortcut& shortcut, const QString& key)
{
    return setObject(m_store, kShortcut, key, shortcut);
}

std::optional<KeyboardShortcut> ObjectStorage::keyboardShortcutForKey(const QString& key) const
{
    return objectForKey(m_store, kShortcut, key);
}
