// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ShortcutBindings.h"

#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceKeys.h"

const std::array<ShortcutBinding, ShortcutCount>& shortcutBindings()
{
    using namespace PreferenceKeys;
    static const std::array<ShortcutBinding, ShortcutCount> bindings = {{
        {ShortcutAction::PreviousSegment, PreviousSegmentShortcut, "previous",
         KeyboardShortcut(Keyboard::KeyUpArrow, 0)},
        {ShortcutAction::NextSegment, NextSegmentShortcut, "next",
         KeyboardShortcut(Keyboard::KeyDownArrow, 0)},
        {ShortcutAction::PlayPause, PlayPauseShortcut, "playpause",
         KeyboardShortcut(Keyboard::KeyReturn, 0)},
        {ShortcutAction::RepeatPlay, RepeatPlayShortcut, "repeatplay",
         KeyboardShortcut(Keyboard::KeyR, ModifierFlag::Control)},
        {ShortcutAction::PlayFirst, PlayFirstShortcut, "playfirst",
         KeyboardShortcut(Keyboard::KeySlash, ModifierFlag::Control)},
        {ShortcutAction::SplitAudio, SplitAudioShortcut, "splitaudio",
         KeyboardShortcut(Keyboard::KeyF2, 0)},
        {ShortcutAction::Check, CheckShortcut, "check",
         KeyboardShortcut(Keyboard::KeyReturn, ModifierFlag::Control)},
        {ShortcutAction::ShowNextWord, ShowNextWordShortcut, "shownextword",
         KeyboardShortcut(Keyboard::KeyH, ModifierFlag::Control)},
        {ShortcutAction::SplitSegment, SplitSegmentShortcut, "splitsegment",
         KeyboardShortcut(Keyboard::KeyB, ModifierFlag::Control)},
        {ShortcutAction::MergeSegments, MergeSegmentsShortcut, "mergesegments",
         KeyboardShortcut(Keyboard::KeyJ, ModifierFlag::Control)},
        {ShortcutAction::PractiseHard, PractiseHardShortcut, "practisehard",
         KeyboardShortcut(Keyboard::KeyH, ModifierFlag::Control | ModifierFlag::Shift)},
    }};
    return bindings;
}

ShortcutSet storedShortcuts(const ObjectStorage& storage)
{
    ShortcutSet set;
    const auto& bindings = shortcutBindings();
    for (std::size_t i = 0; i < bindings.size(); ++i) {
        set[i] = storage.keyboardShortcutForKey(QString::fromLatin1(bindings[i].defaultsKey))
                     .value_or(bindings[i].defaultShortcut);
    }
    return set;
}

std::optional<ShortcutAction> matchShortcut(qint64 eventKeyCode, quint64 eventModifierFlags,
                                            const ShortcutSet& shortcuts)
{
    const qint64 keyCode = eventKeyCode & 0xffff;
    const quint64 flags = eventModifierFlags & ModifierFlag::RecordingMask;
    const auto& bindings = shortcutBindings();
    for (std::size_t i = 0; i < bindings.size(); ++i) {
        if (shortcuts[i].keyCode() == keyCode && shortcuts[i].modifierFlags() == flags)
            return bindings[i].action;
    }
    return std::nullopt;
}

std::optional<ShortcutAction> matchStoredShortcut(const ObjectStorage& storage, qint64 eventKeyCode,
                                                  quint64 eventModifierFlags)
{
    return matchShortcut(eventKeyCode, eventModifierFlags, storedShortcuts(storage));
}
