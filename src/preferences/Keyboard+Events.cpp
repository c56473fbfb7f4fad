// SPDX-License-Identifier: GPL-3.0-or-later
// Translation of Qt key events into the stored key-code numbering (virtual key
// codes of the ANSI layout) and modifier bits.

#include "preferences/Keyboard.h"
#include "preferences/KeyboardShortcut.h"

#include <QHash>
#include <QKeyEvent>
#include <array>
#include <string_view>

namespace {

// Printable ASCII (0x20..0x7e) to the code of the ANSI key that types it,
// shifted or not; -1 for nothing (lower-case letters never reach us: Qt
// reports letters in upper case).
constexpr std::array<qint8, 95> kAsciiKeys = [] {
    std::array<qint8, 95> k{};
    for (auto& v : k)
        v = -1;
    auto set = [&k](char c, int code) { k[size_t(c - 0x20)] = qint8(code); };
    const char* letters = "ASDFHGZXCV";
    for (int i = 0; i < 10; ++i)
        set(letters[i], i); // A 0 .. V 9
    set('B', 11), set('Q', 12), set('W', 13), set('E', 14), set('R', 15), set('Y', 16);
    set('T', 17), set('O', 31), set('U', 32), set('I', 34), set('P', 35), set('L', 37);
    set('J', 38), set('K', 40), set('N', 45), set('M', 46);
    set('1', 18), set('2', 19), set('3', 20), set('4', 21), set('6', 22), set('5', 23);
    set('9', 25), set('7', 26), set('8', 28), set('0', 29);
    set('=', 24), set('-', 27), set(']', 30), set('[', 33), set('\'', 39), set(';', 41);
    set('\\', 42), set(',', 43), set('/', 44), set('.', 47), set('`', 50), set(' ', 49);
    // The same keys with Shift held on the US layout.
    set('!', 18), set('@', 19), set('#', 20), set('$', 21), set('^', 22), set('%', 23);
    set('(', 25), set('&', 26), set('*', 28), set(')', 29), set('+', 24), set('_', 27);
    set('}', 30), set('{', 33), set('"', 39), set(':', 41), set('|', 42), set('<', 43);
    set('?', 44), set('>', 47), set('~', 50);
    return k;
}();

qint64 keypadCode(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_0:
        return 82;
    case Qt::Key_1:
        return 83;
    case Qt::Key_2:
        return 84;
    case Qt::Key_3:
        return 85;
    case Qt::Key_4:
        return 86;
    case Qt::Key_5:
        return 87;
    case Qt::Key_6:
        return 88;
    case Qt::Key_7:
        return 89;
    case Qt::Key_8:
        return 91;
    case Qt::Key_9:
        return 92;
    case Qt::Key_Period:
    case Qt::Key_Comma:
        return 65;
    case Qt::Key_Asterisk:
        return 67;
    case Qt::Key_Plus:
        return 69;
    case Qt::Key_Slash:
        return 75;
    case Qt::Key_Enter:
        return 76;
    case Qt::Key_Minus:
        return 78;
    case Qt::Key_Equal:
        return 81;
    default:
        return -1;
    }
}

// X11 keysyms of the right-hand modifier keys (Qt reports both sides alike).
constexpr quint32 XK_Shift_R = 0xffe2, XK_Control_R = 0xffe4, XK_Meta_R = 0xffe8, XK_Alt_R = 0xffea,
                  XK_Super_R = 0xffec;

qint64 specialKeyCode(int qtKey, quint32 nativeVirtualKey)
{
    switch (qtKey) {
    case Qt::Key_Escape:
        return 53;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return 48;
    case Qt::Key_Backspace:
        return 51;
    case Qt::Key_Return:
        return 36;
    case Qt::Key_Enter:
        return 76;
    case Qt::Key_Insert:
    case Qt::Key_Help:
        return 114;
    case Qt::Key_Delete:
        return 117;
    case Qt::Key_Clear:
        return 71;
    case Qt::Key_Home:
        return 115;
    case Qt::Key_End:
        return 119;
    case Qt::Key_PageUp:
        return 116;
    case Qt::Key_PageDown:
        return 121;
    case Qt::Key_Left:
        return 123;
    case Qt::Key_Right:
        return 124;
    case Qt::Key_Down:
        return 125;
    case Qt::Key_Up:
        return 126;
    case Qt::Key_Menu:
        return 110;
    case Qt::Key_VolumeUp:
        return 72;
    case Qt::Key_VolumeDown:
        return 73;
    case Qt::Key_VolumeMute:
        return 74;
    case Qt::Key_CapsLock:
        return 57;
    case Qt::Key_Shift:
        return nativeVirtualKey == XK_Shift_R ? 60 : 56;
    case Qt::Key_Control:
        return nativeVirtualKey == XK_Control_R ? 62 : 59;
    case Qt::Key_Alt:
        return nativeVirtualKey == XK_Alt_R ? 61 : 58;
    case Qt::Key_AltGr:
        return 61;
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
        return nativeVirtualKey == XK_Meta_R || nativeVirtualKey == XK_Super_R ? 54 : 55;
    case Qt::Key_Super_R:
        return 54;
    case Qt::Key_F1:
        return 122;
    case Qt::Key_F2:
        return 120;
    case Qt::Key_F3:
        return 99;
    case Qt::Key_F4:
        return 118;
    case Qt::Key_F5:
        return 96;
    case Qt::Key_F6:
        return 97;
    case Qt::Key_F7:
        return 98;
    case Qt::Key_F8:
        return 100;
    case Qt::Key_F9:
        return 101;
    case Qt::Key_F10:
        return 109;
    case Qt::Key_F11:
        return 103;
    case Qt::Key_F12:
        return 111;
    case Qt::Key_F13:
        return 105;
    case Qt::Key_F14:
        return 107;
    case Qt::Key_F15:
        return 113;
    case Qt::Key_F16:
        return 106;
    case Qt::Key_F17:
        return 64;
    case Qt::Key_F18:
        return 79;
    case Qt::Key_F19:
        return 80;
    case Qt::Key_F20:
        return 90;
    default:
        return -1;
    }
}

// Codes for keys the ANSI numbering lacks, all in 127..65535 and distinct:
// Qt's function-key block (Print, Pause, F21.., media keys) from 127, and
// characters of other layouts (é, ж, ...) from 0x1000 + their code point.
constexpr qint64 kSpecialBase = Keyboard::FirstExtraCode;
constexpr int kSpecialSpan = 0x0f00;
constexpr qint64 kCharacterBase = 0x1000;
constexpr int kCharacterLimit = 0xf000;

qint64 extraCode(int qtKey)
{
    if (qtKey >= Qt::Key_Escape && qtKey < Qt::Key_Escape + kSpecialSpan)
        return kSpecialBase + (qtKey - Qt::Key_Escape);
    if (qtKey > 0x7e && qtKey < kCharacterLimit)
        return kCharacterBase + qtKey;
    return -1;
}

} // namespace

KeyStroke Keyboard::keyStrokeFor(int qtKey, Qt::KeyboardModifiers modifiers,
                                 quint32 nativeVirtualKey)
{
    KeyStroke stroke;
    if (modifiers & Qt::ShiftModifier)
        stroke.rawModifierFlags |= ModifierFlag::Shift;
    if (modifiers & Qt::ControlModifier)
        stroke.rawModifierFlags |= ModifierFlag::Control;
    if (modifiers & Qt::AltModifier)
        stroke.rawModifierFlags |= ModifierFlag::Option;
    if (modifiers & Qt::MetaModifier)
        stroke.rawModifierFlags |= ModifierFlag::Command;
    if (modifiers & Qt::KeypadModifier)
        stroke.rawModifierFlags |= ModifierFlag::NumericPad;
    stroke.modifierFlags = stroke.rawModifierFlags & ModifierFlag::RecordingMask;

    if (qtKey >= 'a' && qtKey <= 'z')
        qtKey -= 'a' - 'A'; // synthesised events may carry the lower-case letter
    qint64 code = -1;
    if (modifiers & Qt::KeypadModifier)
        code = keypadCode(qtKey);
    if (code < 0 && qtKey >= 0x20 && qtKey <= 0x7e)
        code = kAsciiKeys[size_t(qtKey - 0x20)];
    if (code < 0)
        code = specialKeyCode(qtKey, nativeVirtualKey);
    if (code < 0 && qtKey != Qt::Key_unknown && qtKey != 0)
        code = extraCode(qtKey);
    stroke.keyCode = code;
    return stroke;
}

KeyStroke Keyboard::keyStrokeForEvent(const QKeyEvent& event)
{
    return keyStrokeFor(event.key(), event.modifiers(), event.nativeVirtualKey());
}

int Keyboard::qtKeyForKeyCode(qint64 keyCode, bool* keypad)
{
    struct Entry
    {
        int key;
        bool keypad;
    };
    // Built once by running the translation above over the keys that can
    // name a code; the first key to reach a code names it.
    static const QHash<qint64, Entry> keys = [] {
        QHash<qint64, Entry> table;
        auto add = [&table](int key, bool onKeypad) {
            const qint64 code =
                keyStrokeFor(key, onKeypad ? Qt::KeypadModifier : Qt::NoModifier).keyCode;
            if (code >= 0 && !table.contains(code))
                table.insert(code, {key, onKeypad});
        };
        // What the keys of the US layout type without Shift, so that code 41
        // is ";" and not ":".
        for (char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789=-][';\\,./` "))
            add(c, false);
        for (int key = Qt::Key_Escape; key < Qt::Key_Escape + kSpecialSpan; ++key) {
            if (specialKeyCode(key, 0) >= 0)
                add(key, false);
        }
        for (char c : std::string_view("0123456789.*+/-="))
            add(c, true);
        return table;
    }();

    bool onKeypad = false;
    int key = 0;
    if (const auto it = keys.constFind(keyCode); it != keys.cend()) {
        key = it->key;
        onKeypad = it->keypad;
    } else if (keyCode >= kSpecialBase && keyCode < kSpecialBase + kSpecialSpan) {
        key = Qt::Key_Escape + int(keyCode - kSpecialBase);
    } else if (keyCode >= kCharacterBase && keyCode < kCharacterBase + kCharacterLimit) {
        key = int(keyCode - kCharacterBase);
    }
    // An extra code names a key only when that key really comes back to it.
    if (key != 0 && !onKeypad && keyStrokeFor(key, Qt::NoModifier).keyCode != keyCode)
        key = 0;
    if (keypad)
        *keypad = onKeypad;
    return key;
}
