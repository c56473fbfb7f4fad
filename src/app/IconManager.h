// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

// Toolbar images by name ("play", "pause", "forward", "repeat.1", "open", …):
// the desktop's icon theme where it has the icon, else Kelmora's own drawing.
class IconManager
{
public:
    static IconManager& shared();

    QIcon iconForName(const QString& name);

    // The freedesktop theme name standing for one of ours, or empty.
    static QString themeNameFor(const QString& name);
    // Kelmora's own drawing of the icon (a resource path), or empty.
    static QString bundledPathFor(const QString& name);

private:
    QHash<QString, QIcon> m_cache;
};
