// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/KeyboardShortcut.h"

#include "preferences/Keyboard.h"
#include "preferences/KeyedArchive.h"

QString KeyboardShortcut::shortcutDisplayString() const
{
    if (m_keyCode == 0)
        return QString();
    return Keyboard::modifierFlagsToString(m_modifierFlags) + Keyboard::keyCodeToString(m_keyCode);
}

void KeyboardShortcut::encodeWithCoder(KeyedArchiver& coder) const
{
    coder.encodeInt64(QStringLiteral("keyCode"), m_keyCode);
    coder.encodeUInt64(QStringLiteral("modifierFlags"), m_modifierFlags);
}

std::optional<KeyboardShortcut> KeyboardShortcut::initWithCoder(KeyedUnarchiver& coder)
{
    const std::optional<qint64> keyCode = coder.decodeInt64(QStringLiteral("keyCode"));
    const std::optional<quint64> flags = coder.decodeUInt64(QStringLiteral("modifierFlags"));
    if (!keyCode || !flags)
        return std::nullopt;
    return KeyboardShortcut(*keyCode, *flags);
}
