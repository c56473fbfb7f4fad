// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

class QKeyEvent;

// A key press in the stored numbering: the ANSI-layout virtual key code and
// the device-independent modifier bits.
struct KeyStroke
{
    qint64 keyCode = -1;          // -1: the event names no key we can store
    quint64 modifierFlags = 0;    // masked to Shift, Control, Option, Command
    quint64 rawModifierFlags = 0; // every bit the event carried, before masking
    bool isValid() const { return keyCode >= 0; }
};

// Key and modifier names for display, and the translation of Qt key events
// into the stored numbering.
class Keyboard
{
public:
    // Virtual key codes of the ANSI layout (a few that the code refers to).
    enum KeyCode : qint64
    {
        KeyA = 0,
        KeyH = 4,
        KeyZ = 6,
        KeyB = 11,
        KeyQ = 12,
        KeyW = 13,
        KeyR = 15,
        KeyReturn = 36,
        KeyJ = 38,
        KeySlash = 44,
        KeyF2 = 120,
        KeyF10 = 109,
        KeyDownArrow = 125,
        KeyUpArrow = 126,
        // Keys with no code in that numbering are given codes from here upward.
        FirstExtraCode = 127,
    };

    // The key's name as Linux desktops write it ("R", "Return", "Up", "F2",
    // "Num+5"), in the words Qt uses for its own menus; "Key %ld" for a code
    // that names no key.
    static QString keyCodeToString(qint64 keyCode);

    // Every modifier that is set, each followed by "+", in the order Qt's
    // menus use: "Super+", "Ctrl+", "Alt+", "Shift+" (Command is the Super
    // key here, Option is Alt); empty when none is set.
    static QString modifierFlagsToString(quint64 modifierFlags);

    // What a learner reads for a shortcut: the modifiers, then the key
    // ("Ctrl+R", "Shift+N", "Down"); empty for key code -1.
    static QString shortcutText(qint64 keyCode, quint64 modifierFlags);

    // True for the Command, Shift, Option and Control keys, left and right
    // (54, 55, 56, 58, 59, 60, 61, 62); Caps Lock (57) and Fn (63) are not.
    static bool isModifierKey(qint64 keyCode);

    // The one translation from a Qt key event: Ctrl is Control, Alt is Option,
    // Super/Meta is Command, Shift is Shift; keypad keys get the keypad codes;
    // a shifted symbol of the ANSI layout ("!", "?") gets its key's code. Keys
    // the numbering lacks get codes from 127 upward that stay below 65536, so
    // the 16-bit key-code mask of the matching rule never changes them.
    static KeyStroke keyStrokeForEvent(const QKeyEvent& event);
    static KeyStroke keyStrokeFor(int qtKey, Qt::KeyboardModifiers modifiers,
                                  quint32 nativeVirtualKey = 0);
    // The way back, for names: a Qt key that translates to the code (with
    // *keypad telling whether it is the keypad's), or 0 when none does.
    static int qtKeyForKeyCode(qint64 keyCode, bool* keypad = nullptr);
};
