// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/IconManager.h"

#include <QFile>

namespace {

struct IconName
{
    const char* name;
    const char* themeName;
    const char* bundledFile;
};

// Ours → the freedesktop name → the bundled drawing. The "legacy_" files are
// the images the toolbar showed before icon themes were consulted.
constexpr IconName kIcons[] = {
    {"play", "media-playback-start", "legacy_play"},
    {"pause", "media-playback-pause", "legacy_pause"},
    {"forward", "media-skip-forward", "legacy_forward"},
    {"repeat.1", "media-playlist-repeat", "legacy_repeat.1"},
    {"open", "document-open", "open"},
    {"export", "document-save-as", "export"},
    {"settings", "preferences-system", "settings"},
    {"import", "document-import", "import"},
    {"clear", "edit-clear", "clear"},
    {"music", "folder-music", "music"},
    {"kelmora", "com.kelmora.Kelmora", "kelmora"},
};

const IconName* find(const QString& name)
{
    for (const IconName& icon : kIcons) {
        if (name == QLatin1String(icon.name))
            return &icon;
    }
    return nullptr;
}

} // namespace

IconManager& IconManager::shared()
{
    static IconManager instance;
    return instance;
}

QString IconManager::themeNameFor(const QString& name)
{
    const IconName* icon = find(name);
    return icon ? QString::fromLatin1(icon->themeName) : QString();
}

QString IconManager::bundledPathFor(const QString& name)
{
    const IconName* icon = find(name);
    const QString file = icon ? QString::fromLatin1(icon->bundledFile) : name;
    const QString path = QStringLiteral(":/icons/%1.svg").arg(file);
    return QFile::exists(path) ? path : QString();
}

QIcon IconManager::iconForName(const QString& name)
{
    if (auto it = m_cache.constFind(name); it != m_cache.constEnd())
        return *it;
    QIcon icon;
    const QString bundled = bundledPathFor(name);
    const QString themeName = themeNameFor(name);
    if (!themeName.isEmpty())
        icon = bundled.isEmpty() ? QIcon::fromTheme(themeName)
                                 : QIcon::fromTheme(themeName, QIcon(bundled));
    if (icon.isNull() && !bundled.isEmpty())
        icon = QIcon(bundled);
    m_cache.insert(name, icon);
    return icon;
}
