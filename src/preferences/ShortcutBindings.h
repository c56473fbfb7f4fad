// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/KeyboardShortcut.h"

#include <array>
#include <optional>

class ObjectStorage;

// The commands that can be bound to a key: six for playback, two for the
// check against a reference text, two for fixing the cutting, one for the
// hard sentences.
enum class ShortcutAction
{
    PreviousSegment, // playPreviousSegment
    NextSegment,     // playNextSegment
    PlayPause,       // togglePlayPause:
    RepeatPlay,      // toggleRepeat:
    PlayFirst,       // playFirstSegment
    SplitAudio,      // processAudioFile
    Check,           // checkCurrentSegment
    ShowNextWord,    // showNextWord
    SplitSegment,    // splitSegmentAtPlayHead
    MergeSegments,   // mergeWithNextSegment
    PractiseHard,    // togglePractiseHardSentences
};

struct ShortcutBinding
{
    ShortcutAction action;
    const char* defaultsKey;     // where the shortcut is stored
    const char* fieldIdentifier; // the preferences panel's field
    KeyboardShortcut defaultShortcut;
};

inline constexpr std::size_t ShortcutCount = 11;
using ShortcutSet = std::array<KeyboardShortcut, ShortcutCount>;

// The bindings in the order a key press is tested against them; the first match
// wins, so two commands on one key resolve to the earlier one.
const std::array<ShortcutBinding, ShortcutCount>& shortcutBindings();

// The shortcuts as stored; one that cannot be read falls back to its default.
ShortcutSet storedShortcuts(const ObjectStorage& storage);

// The command a key press runs: the event's key code masked to 16 bits must
// equal the shortcut's, and its modifier flags masked to Shift, Control, Option
// and Command must equal the shortcut's flags exactly.
std::optional<ShortcutAction> matchShortcut(qint64 eventKeyCode, quint64 eventModifierFlags,
                                            const ShortcutSet& shortcuts);

// Reads the store afresh, as every key press does.
std::optional<ShortcutAction> matchStoredShortcut(const ObjectStorage& storage, qint64 eventKeyCode,
                                                  quint64 eventModifierFlags);
