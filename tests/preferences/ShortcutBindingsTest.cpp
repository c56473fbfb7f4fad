// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ShortcutBindings.h"

#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

using TestSupport::LogCapture;
using TestSupport::TempDefaults;
using A = ShortcutAction;

namespace {

std::optional<ShortcutAction> pressOn(const ObjectStorage& storage, int key,
                                      Qt::KeyboardModifiers mods = Qt::NoModifier)
{
    const KeyStroke s = Keyboard::keyStrokeForEvent(QKeyEvent(QEvent::KeyPress, key, mods));
    return matchStoredShortcut(storage, s.keyCode, s.rawModifierFlags);
}

} // namespace

TEST(ShortcutBindings, DefaultKeysRunTheirCommandsFromRealKeyEvents)
{
    TempDefaults t;
    regDefaultPreference(t.store());
    ObjectStorage objects(t.store());
    EXPECT_EQ(pressOn(objects, Qt::Key_Up), A::PreviousSegment);
    EXPECT_EQ(pressOn(objects, Qt::Key_Down), A::NextSegment);
    EXPECT_EQ(pressOn(objects, Qt::Key_Return), A::PlayPause);
    EXPECT_EQ(pressOn(objects, Qt::Key_R, Qt::ControlModifier), A::RepeatPlay);
    EXPECT_EQ(pressOn(objects, Qt::Key_Slash, Qt::ControlModifier), A::PlayFirst);
    EXPECT_EQ(pressOn(objects, Qt::Key_F2), A::SplitAudio);

    // Modifier flags must match exactly: extra or missing modifiers do not match.
    EXPECT_FALSE(pressOn(objects, Qt::Key_Up, Qt::ShiftModifier));
    EXPECT_FALSE(pressOn(objects, Qt::Key_R));
    EXPECT_FALSE(pressOn(objects, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_FALSE(pressOn(objects, Qt::Key_R, Qt::MetaModifier));
    // The keypad Enter is another key than Return.
    EXPECT_FALSE(pressOn(objects, Qt::Key_Enter, Qt::KeypadModifier));
    // The keypad bit is not one of the four: an arrow from the keypad still matches.
    EXPECT_EQ(pressOn(objects, Qt::Key_Up, Qt::KeypadModifier), A::PreviousSegment);
}

TEST(ShortcutBindings, MatchingMasksTheEventAndTakesTheFirstOfTwoEqualBindings)
{
    ShortcutSet set;
    for (std::size_t i = 0; i < set.size(); ++i)
        set[i] = shortcutBindings()[i].defaultShortcut;
    // Only the low 16 bits of the key code and the four modifier bits count.
    EXPECT_EQ(matchShortcut(0x10000 + 126, 0, set), A::PreviousSegment);
    EXPECT_EQ(matchShortcut(15, 0x40000 | 0x10000 /*caps lock*/ | 0x800000 /*fn*/, set),
              A::RepeatPlay);
    EXPECT_FALSE(matchShortcut(15, 0x40000 | 0x20000, set));

    set[4] = KeyboardShortcut(126, 0); // "play first" on Up as well: previous still wins
    EXPECT_EQ(matchShortcut(126, 0, set), A::PreviousSegment);
    set[0] = KeyboardShortcut(1, 0);
    EXPECT_EQ(matchShortcut(126, 0, set), A::PlayFirst);

    const ShortcutSet allFour = {KeyboardShortcut(40, 0x1e0000)};
    EXPECT_EQ(matchShortcut(40, 0x1e0000, allFour), A::PreviousSegment);
    EXPECT_FALSE(matchShortcut(40, 0x40000, allFour));
    EXPECT_FALSE(matchShortcut(40, 0x160000, allFour));
}

TEST(ShortcutBindings, StoredShortcutsReplaceDefaultsAndUnreadableOnesFallBack)
{
    TempDefaults t;
    regDefaultPreference(t.store());
    ObjectStorage objects(t.store());
    ASSERT_TRUE(objects.setKeyboardShortcut({1, 0x20000}, PreferenceKeys::NextSegmentShortcut));
    t.store().setObject(QByteArray("not an archive"), PreferenceKeys::PlayPauseShortcut);

    LogCapture log;
    EXPECT_EQ(pressOn(objects, Qt::Key_S, Qt::ShiftModifier), A::NextSegment);
    EXPECT_FALSE(pressOn(objects, Qt::Key_Down));
    // The unreadable play/pause shortcut falls back to Return.
    EXPECT_EQ(pressOn(objects, Qt::Key_Return), A::PlayPause);
    EXPECT_TRUE(log.lines().contains(
        "Error unarchiving keyboardShortcut: the data is not a Kelmora archive"));

    // Without any registration (a store nobody set up) the built-in defaults apply.
    TempDefaults bare;
    ObjectStorage none(bare.store());
    EXPECT_EQ(pressOn(none, Qt::Key_Slash, Qt::ControlModifier), A::PlayFirst);
}
