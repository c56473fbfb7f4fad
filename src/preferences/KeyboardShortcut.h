// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

class KeyedArchiver;
class KeyedUnarchiver;

// Device-independent modifier bits, in the numbering shortcuts are stored in.
namespace ModifierFlag {
inline constexpr quint64 Shift = 0x20000;
inline constexpr quint64 Control = 0x40000;
inline constexpr quint64 Option = 0x80000;
inline constexpr quint64 Command = 0x100000;
inline constexpr quint64 NumericPad = 0x200000;
// The four that a shortcut may carry; every other bit is dropped when recording
// and when matching.
inline constexpr quint64 RecordingMask = Shift | Control | Option | Command;
} // namespace ModifierFlag

// One key with modifiers bound to a playback command. Archived as exactly two
// integers, "keyCode" and "modifierFlags".
class KeyboardShortcut
{
public:
    static constexpr const char* ClassTag = "KeyboardShortcut";
    static constexpr quint16 CodingVersion = 1;

    KeyboardShortcut() = default;
    KeyboardShortcut(qint64 keyCode, quint64 modifierFlags)
        : m_keyCode(keyCode), m_modifierFlags(modifierFlags)
    {
    }

    qint64 keyCode() const { return m_keyCode; }
    quint64 modifierFlags() const { return m_modifierFlags; }

    // Declared for compatibility with older callers and never set: display text
    // comes from shortcutDisplayString().
    QString displayString() const { return {}; }

    // The modifiers followed by the key name ("Ctrl+R"); empty for key code 0.
    // Key code 0 is the A key, so a plain A shortcut shows nothing here, unlike
    // the recording field, which shows "A".
    QString shortcutDisplayString() const;

    void encodeWithCoder(KeyedArchiver& coder) const;
    // Nothing, with the coder's error set, when "keyCode" or "modifierFlags" is
    // missing or of another type.
    static std::optional<KeyboardShortcut> initWithCoder(KeyedUnarchiver& coder);

    friend bool operator==(const KeyboardShortcut&, const KeyboardShortcut&) = default;

private:
    qint64 m_keyCode = 0;
    quint64 m_modifierFlags = 0;
};
