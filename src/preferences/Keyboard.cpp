// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/Keyboard.h"

#include "preferences/KeyboardShortcut.h"

#include <QKeySequence>

QString Keyboard::keyCodeToString(qint64 keyCode)
{
    bool keypad = false;
    if (const int key = qtKeyForKeyCode(keyCode, &keypad)) {
        const QKeyCombination combination =
            QKeyCombination::fromCombined(key | (keypad ? int(Qt::KeypadModifier) : 0));
        const QString name = QKeySequence(combination).toString(QKeySequence::NativeText);
        // Qt spells a key it has no name for as broken UTF-16.
        if (!name.isEmpty() && name.isValidUtf16())
            return name;
    }
    return QStringLiteral("Key %1").arg(keyCode);
}

QString Keyboard::modifierFlagsToString(quint64 modifierFlags)
{
    // Qt's own words, as its menus print them (translated with Qt's
    // dialogs), taken from a sequence on a one-letter key; Qt says "Meta"
    // where Linux desktops say "Super".
    auto qtPrefix = [](Qt::KeyboardModifier modifier) {
        return QKeySequence(QKeyCombination(modifier, Qt::Key_A))
            .toString(QKeySequence::NativeText)
            .chopped(1);
    };
    QString text;
    if (modifierFlags & ModifierFlag::Command)
        text += QStringLiteral("Super+");
    if (modifierFlags & ModifierFlag::Control)
        text += qtPrefix(Qt::ControlModifier);
    if (modifierFlags & ModifierFlag::Option)
        text += qtPrefix(Qt::AltModifier);
    if (modifierFlags & ModifierFlag::Shift)
        text += qtPrefix(Qt::ShiftModifier);
    return text;
}

QString Keyboard::shortcutText(qint64 keyCode, quint64 modifierFlags)
{
    if (keyCode == -1)
        return QString();
    return modifierFlagsToString(modifierFlags) + keyCodeToString(keyCode);
}

bool Keyboard::isModifierKey(qint64 keyCode)
{
    switch (keyCode) {
    case 54: // right Command
    case 55: // Command
    case 56: // Shift
    case 58: // Option
    case 59: // Control
    case 60: // right Shift
    case 61: // right Option
    case 62: // right Control
        return true;
    default:
        return false;
    }
}
