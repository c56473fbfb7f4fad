// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecentDocuments.h"

#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QFileInfo>

void RecentDocuments::add(const QString& path)
{
    if (path.isEmpty())
        return;
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList list = paths();
    list.removeAll(absolute);
    list.prepend(absolute);
    while (list.size() > MaximumCount)
        list.removeLast();
    m_store.setObject(list, PreferenceKeys::RecentDocuments);
}

QStringList RecentDocuments::paths() const
{
    // A value of another type (a hand-edited settings file) counts as no list.
    const QVariant value = m_store.objectForKey(PreferenceKeys::RecentDocuments);
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() == QMetaType::QString && !value.toString().isEmpty())
        return {value.toString()};
    if (value.typeId() == QMetaType::QVariantList) {
        QStringList list;
        for (const QVariant& item : value.toList()) {
            if (item.typeId() == QMetaType::QString)
                list << item.toString();
        }
        return list;
    }
    return {};
}

QStringList RecentDocuments::existingPaths() const
{
    QStringList list;
    for (const QString& path : paths()) {
        if (QFileInfo(path).isFile())
            list << path;
    }
    return list;
}

void RecentDocuments::clear()
{
    m_store.removeObject(PreferenceKeys::RecentDocuments);
}
