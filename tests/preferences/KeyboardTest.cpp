// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/Keyboard.h"

#include "preferences/KeyboardShortcut.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <gtest/gtest.h>
#include <utility>

TEST(Keyboard, KeysAreNamedAsLinuxDesktopsNameThemWithAKeyNFallBack)
{
    // Letters and digits are held by the key-event test below.
    const std::pair<qint64, const char*> names[] = {
        {42, "\\"},       {44, "/"},        {41, ";"},     {39, "'"},      {36, "Return"},
        {49, "Space"},     {53, "Esc"},      {51, "Backspace"}, {117, "Del"}, {114, "Ins"},
        {72, "Volume Up"}, {116, "PgUp"},    {121, "PgDown"}, {122, "F1"},   {90, "F20"},
        {105, "F13"},      {123, "Left"},    {124, "Right"},  {125, "Down"}, {126, "Up"},
        {76, "Enter"},     {87, "Num+5"},    {69, "Num++"},
    };
    for (const auto& [code, name] : names)
        EXPECT_EQ(Keyboard::keyCodeToString(code), name) << code;
    // Codes no key translates to: gaps of the numbering, an unnamed Qt key,
    // an ASCII key's character code, and negative ones.
    for (qint64 code : {10, 52, 127 + 0xeff, 0x1000 + 'A', -1})
        EXPECT_EQ(Keyboard::keyCodeToString(code), QStringLiteral("Key %1").arg(code)) << code;
}

TEST(Keyboard, ModifiersAreAllShownInTheOrderOfQtsMenus)
{
    using namespace ModifierFlag;
    EXPECT_EQ(Keyboard::modifierFlagsToString(0), "");
    EXPECT_EQ(Keyboard::modifierFlagsToString(Shift), "Shift+");
    EXPECT_EQ(Keyboard::modifierFlagsToString(Control), "Ctrl+");
    EXPECT_EQ(Keyboard::modifierFlagsToString(Option), "Alt+");
    EXPECT_EQ(Keyboard::modifierFlagsToString(Command), "Super+");
    EXPECT_EQ(Keyboard::modifierFlagsToString(Control | Shift), "Ctrl+Shift+");
    EXPECT_EQ(Keyboard::modifierFlagsToString(RecordingMask), "Super+Ctrl+Alt+Shift+");
    EXPECT_EQ(Keyboard::modifierFlagsToString(NumericPad | 0x10000), "");
    EXPECT_EQ(Keyboard::shortcutText(31, Control), "Ctrl+O");
    EXPECT_EQ(Keyboard::shortcutText(0, 0), "A");
    EXPECT_EQ(Keyboard::shortcutText(-1, Control), "");
}

TEST(Keyboard, OnlyModifierKeysAreModifierKeys)
{
    for (qint64 code : {54, 55, 56, 58, 59, 60, 61, 62})
        EXPECT_TRUE(Keyboard::isModifierKey(code)) << code;
    for (qint64 code : {0, 36, 53, 57, 63, 126, -1})
        EXPECT_FALSE(Keyboard::isModifierKey(code)) << code;
}

TEST(KeyboardShortcut, DisplayStringIsModifiersThenKeyAndEmptyForKeyCodeZero)
{
    EXPECT_EQ(KeyboardShortcut(126, 0).shortcutDisplayString(), "Up");
    EXPECT_EQ(KeyboardShortcut(44, 0x40000).shortcutDisplayString(), "Ctrl+/");
    EXPECT_EQ(KeyboardShortcut(12, 0x180000).shortcutDisplayString(), "Super+Alt+Q");
    EXPECT_EQ(KeyboardShortcut(40, 0x1e0000).shortcutDisplayString(), "Super+Ctrl+Alt+Shift+K");
    EXPECT_EQ(KeyboardShortcut(10, 0).shortcutDisplayString(), "Key 10");
    // Key code 0 is the A key; a plain A shows nothing here.
    EXPECT_EQ(KeyboardShortcut(0, 0).shortcutDisplayString(), "");
    EXPECT_EQ(KeyboardShortcut(0, 0x100000).shortcutDisplayString(), "");
    EXPECT_TRUE(KeyboardShortcut(15, 0).displayString().isNull());
}

namespace {

KeyStroke press(int key, Qt::KeyboardModifiers mods = Qt::NoModifier, quint32 nativeVirtualKey = 0)
{
    const QKeyEvent event(QEvent::KeyPress, key, mods, 0, nativeVirtualKey, 0);
    return Keyboard::keyStrokeForEvent(event);
}

} // namespace

TEST(KeyboardEvents, QtKeysMapToTheAnsiCodesAndModifierBits)
{
    EXPECT_EQ(press(Qt::Key_R, Qt::ControlModifier).modifierFlags, 0x40000u);
    EXPECT_EQ(press(Qt::Key_R, Qt::AltModifier).modifierFlags, 0x80000u);
    EXPECT_EQ(press(Qt::Key_R, Qt::MetaModifier).modifierFlags, 0x100000u);
    EXPECT_EQ(press(Qt::Key_R, Qt::ShiftModifier).modifierFlags, 0x20000u);
    EXPECT_EQ(press(Qt::Key_K,
                    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)
                  .modifierFlags,
              0x1e0000u);
    // The keys of the default shortcuts are held by the bindings test.
    EXPECT_EQ(press(Qt::Key_Left).keyCode, 123);
    EXPECT_EQ(press(Qt::Key_Right).keyCode, 124);
    EXPECT_EQ(press(Qt::Key_Escape).keyCode, 53);
    EXPECT_EQ(press(Qt::Key_Backspace).keyCode, 51);
    EXPECT_EQ(press(Qt::Key_Delete).keyCode, 117);
    EXPECT_EQ(press(Qt::Key_Space).keyCode, 49);
    EXPECT_EQ(press(Qt::Key_Tab).keyCode, 48);
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ShiftModifier).keyCode, 48);
    EXPECT_EQ(press(Qt::Key_F20).keyCode, 90);
    EXPECT_EQ(press(Qt::Key_F13).keyCode, 105);

    // Every letter and digit lands on the code whose name is that character.
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        EXPECT_EQ(Keyboard::keyCodeToString(press(key).keyCode), QString(QChar(key))) << key;
    for (int key = Qt::Key_0; key <= Qt::Key_9; ++key)
        EXPECT_EQ(Keyboard::keyCodeToString(press(key).keyCode), QString(QChar(key))) << key;
    EXPECT_EQ(press('q').keyCode, 12);
}

TEST(KeyboardEvents, ShiftedSymbolsKeypadAndModifierKeys)
{
    // With Shift held Qt reports the symbol; the stored code is the key's.
    EXPECT_EQ(press(Qt::Key_Question, Qt::ShiftModifier).keyCode, 44);
    EXPECT_EQ(press(Qt::Key_Exclam, Qt::ShiftModifier).keyCode, 18);
    EXPECT_EQ(press(Qt::Key_ParenRight, Qt::ShiftModifier).keyCode, 29);
    EXPECT_EQ(press(Qt::Key_AsciiTilde, Qt::ShiftModifier).keyCode, 50);
    EXPECT_EQ(press(Qt::Key_Bar, Qt::ShiftModifier).keyCode, 42);

    // Keypad keys get the keypad codes; the keypad bit never reaches the flags.
    const KeyStroke kp5 = press(Qt::Key_5, Qt::KeypadModifier);
    EXPECT_EQ(kp5.keyCode, 87);
    EXPECT_EQ(kp5.modifierFlags, 0u);
    EXPECT_EQ(kp5.rawModifierFlags, 0x200000u);
    EXPECT_EQ(press(Qt::Key_Enter, Qt::KeypadModifier).keyCode, 76);
    EXPECT_EQ(press(Qt::Key_Plus, Qt::KeypadModifier).keyCode, 69);
    EXPECT_EQ(press(Qt::Key_Up, Qt::KeypadModifier).keyCode, 126);

    // Modifier keys map to codes that isModifierKey() recognises, left and right.
    for (int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_Super_L,
                    Qt::Key_Super_R, Qt::Key_AltGr})
        EXPECT_TRUE(Keyboard::isModifierKey(press(key).keyCode)) << key;
    EXPECT_EQ(press(Qt::Key_Shift, Qt::ShiftModifier, 0xffe1).keyCode, 56);
    EXPECT_EQ(press(Qt::Key_Shift, Qt::ShiftModifier, 0xffe2).keyCode, 60);
    EXPECT_EQ(press(Qt::Key_Control, Qt::ControlModifier, 0xffe4).keyCode, 62);
    EXPECT_EQ(press(Qt::Key_Alt, Qt::AltModifier, 0xffea).keyCode, 61);
    EXPECT_EQ(press(Qt::Key_CapsLock).keyCode, 57);
    EXPECT_FALSE(Keyboard::isModifierKey(press(Qt::Key_CapsLock).keyCode));
}

TEST(KeyboardEvents, KeysOutsideTheNumberingGetDistinctCodesFrom127Below65536AndKeepTheirNames)
{
    const int keys[] = {Qt::Key_Print, Qt::Key_Pause,     Qt::Key_ScrollLock, Qt::Key_NumLock,
                        Qt::Key_F21,   Qt::Key_MediaPlay, Qt::Key_MediaNext,  Qt::Key_Back,
                        0x00e9 /*é*/,  0x0416 /*Ж*/,      0x0e01 /*ก*/,       0x3042 /*あ*/};
    QSet<qint64> seen;
    for (int key : keys) {
        const KeyStroke s = press(key);
        ASSERT_TRUE(s.isValid()) << key;
        EXPECT_GE(s.keyCode, 127) << key;
        EXPECT_LT(s.keyCode, 65536) << key;
        EXPECT_EQ(Keyboard::keyCodeToString(s.keyCode),
                  QKeySequence(key).toString(QKeySequence::NativeText))
            << key;
        EXPECT_FALSE(seen.contains(s.keyCode)) << key;
        seen.insert(s.keyCode);
        EXPECT_EQ(press(key).keyCode, s.keyCode) << "stable";
    }
    EXPECT_FALSE(press(Qt::Key_unknown).isValid());
    EXPECT_FALSE(press(0).isValid());
}
