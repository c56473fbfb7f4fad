#include "preferences/Keyboard.h"

#include "preferences/KeyboardShortcut.h"

#include <array>

namespace {

// Display names by key code (0..126); a null entry falls back to "Key %ld".
// Code 90 is shown as "20", without the F, as earlier versions did.
constexpr std::array<const char*, 127> kKeyNames = [] {
    std::array<const char*, 127> n{};
    // Letters
    n[0] = "A", n[1] = "S", n[2] = "D", n[3] = "F", n[4] = "H", n[5] = "G", n[6] = "Z";
    n[7] = "X", n[8] = "C", n[9] = "V", n[11] = "B", n[12] = "Q", n[13] = "W", n[14] = "E";
    n[15] = "R", n[16] = "Y", n[17] = "T", n[31] = "O", n[32] = "U", n[34] = "I", n[35] = "P";
    n[37] = "L", n[38] = "J", n[40] = "K", n[45] = "N", n[46] = "M";
    // Digits
    n[18] = "1", n[19] = "2", n[20] = "3", n[21] = "4", n[22] = "6", n[23] = "5";
    n[25] = "9", n[26] = "7", n[28] = "8", n[29] = "0";
    // Punctuation
    n[24] = "=", n[27] = "-", n[30] = "]", n[33] = "[", n[39] = "'", n[41] = ";";
    n[42] = "\\", n[43] = ",", n[44] = "/", n[47] = ".", n[50] = "`";
    // Named keys
    n[36] = "Return", n[48] = "Tab", n[49] = "Space", n[51] = "Delete", n[53] = "Esc";
    n[72] = "VolumeUp", n[73] = "VolumeDown", n[74] = "Mute";
    n[115] = "Home", n[116] = "Page Up", n[119] = "End", n[121] = "Page Down";
    // Arrows
    n[123] = "\u2190", n[124] = "\u2192", n[125] = "\u2193", n[126] = "\u2191";
    // Function keys
    n[122] = "F1", n[120] = "F2", n[99] = "F3", n[118] = "F4", n[96] = "F5", n[97] = "F6";
    n[98] = "F7", n[100] = "F8", n[101] = "F9", n[109] = "F10", n[103] = "F11", n[111] = "F12";
    n[64] = "F17", n[79] = "F18", n[80] = "F19", n[90] = "20";
    return n;
}();

} // namespace

QString Keyboard::keyCodeToString(qint64 keyCode)
{
    if (keyCode >= 0 && keyCode < qint64(kKeyNames.size()) && kKeyNames[size_t(keyCode)])
        return QString::fromUtf8(kKeyNames[size_t(keyCode)]);
    return QStringLiteral("Key %1").arg(keyCode);
}

QString Keyboard::modifierFlagsToString(quint64 modifierFlags)
{
    if (modifierFlags & ModifierFlag::Control)
        return QStringLiteral("\u2303");
    if (modifierFlags & ModifierFlag::Option)
        return QStringLiteral("\u2325");
    if (modifierFlags & ModifierFlag::Shift)
        return QStringLiteral("\u21e7");
    if (modifierFlags & ModifierFlag::Command)
        return QStringLiteral("\u2318");
    return QString();
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
