// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/KeyboardShortcut.h"

#include <QColor>
#include <QFont>
#include <QString>
#include <optional>

class Defaults;

// Colours, fonts and keyboard shortcuts kept in the defaults store as archived
// data. Every failure is logged and leaves the store as it was; a value that
// cannot be read comes back as nothing (the caller then uses its built-in
// default) and is left in place for the next successful write to replace.
class ObjectStorage
{
public:
    explicit ObjectStorage(Defaults& store) : m_store(store) {}
    // Over the user's own store.
    static ObjectStorage standard();

    // Register: the archive goes into the registration layer (never to disk).
    // Set: into the user's values, written to disk at once.
    // Both return false, after logging, when the object cannot be archived.
    bool registerColorForKey(const QString& key, const QColor& color);
    bool setColor(const QColor& color, const QString& key);
    std::optional<QColor> colorForKey(const QString& key) const;

    bool registerFontForKey(const QString& key, const QFont& font);
    bool setFont(const QFont& font, const QString& key);
    std::optional<QFont> fontForKey(const QString& key) const;

    bool registerKeyboardShortcutForKey(const QString& key, const KeyboardShortcut& shortcut);
    bool setKeyboardShortcut(const KeyboardShortcut& shortcut, const QString& key);
    std::optional<KeyboardShortcut> keyboardShortcutForKey(const QString& key) const;

private:
    Defaults& m_store;
};
