// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The keys of the per-user defaults store, declared once. The spelling after
// the "k" prefix varies between keys and is kept as stored by earlier versions.
namespace PreferenceKeys {

// Transcription table look (archived colours and font) and visibility switches.
inline constexpr const char* TableBackgroundColor = "kTableBackgroundColor"; // archived colour
inline constexpr const char* DictationTextColor = "kDictationTextColor";     // archived colour
inline constexpr const char* DictationTextFont = "kDictationTextFont";       // archived font
inline constexpr const char* ShowLineNumbers = "kShowLineNumbers";           // bool
inline constexpr const char* ShowAudioWave = "kShowAudioWave";               // bool
inline constexpr const char* ShowStatusBar = "kShowStatusBar";               // bool

// Playback shortcuts (archived KeyboardShortcut), in the order key presses test them.
inline constexpr const char* PreviousSegmentShortcut = "kPreviousSegmentShortcut";
inline constexpr const char* NextSegmentShortcut = "kNextSegmentShortcut";
inline constexpr const char* PlayPauseShortcut = "kPlayPauseShortcut";
inline constexpr const char* RepeatPlayShortcut = "kRepeatPlayShortcut";
inline constexpr const char* PlayFirstShortcut = "kPlayFirstShortcut";
inline constexpr const char* SplitAudioShortcut = "kSplitAudioShortcut";
// The check against a reference text.
inline constexpr const char* CheckShortcut = "kCheckShortcut";
inline constexpr const char* ShowNextWordShortcut = "kShowNextWordShortcut";
// Fixing the cutting by hand.
inline constexpr const char* SplitSegmentShortcut = "kSplitSegmentShortcut";
inline constexpr const char* MergeSegmentsShortcut = "kMergeSegmentsShortcut";
// Stepping through the hard sentences only.
inline constexpr const char* PractiseHardShortcut = "kPractiseHardShortcut";

// Interface language: the chosen code, and the one-element preference list read
// at start-up to pick the translation. Neither has a registered value.
inline constexpr const char* AppLanguage = "AppLanguage";       // string
inline constexpr const char* AppleLanguages = "AppleLanguages"; // list of strings

// Base address of the update lookup service ("lookup?..." is appended); when
// unset the build's default is used. Not registered.
inline constexpr const char* UpdateLookupURL = "UpdateLookupURL"; // string

// Engine: segmentation and playback.
inline constexpr const char* MinSegmentDuration = "kminSegmentDuration"; // double s, floor 1.0
inline constexpr const char* PlaySpeed = "kPlaySpeed";                   // double, 0.3..3.0
inline constexpr const char* MaxRepeatPlayTimes = "kMaxRepeatPlayTimes"; // integer, 1..9999
inline constexpr const char* Sensitivity = "ksensitivity";               // integer as double
inline constexpr const char* MinGapDuration = "kminGapDuration";         // double s, floor 1.0

} // namespace PreferenceKeys

// The Open Recent menu: paths, newest first, at most ten. Not registered.
namespace PreferenceKeys {
inline constexpr const char* RecentDocuments = "RecentDocuments"; // list of strings
} // namespace PreferenceKeys

// The folder bookmark store of the open road; no defaults are registered.
namespace PreferenceKeys {
inline constexpr const char* LastDirectoryBookmark = "LastDirectoryBookmark"; // base64 text
inline constexpr const char* LastAudioFileName = "LastAudioFileName";         // file name
} // namespace PreferenceKeys

// The check against a reference text.
namespace PreferenceKeys {
inline constexpr const char* CountPunctuation = "kCountPunctuation"; // bool
inline constexpr const char* TypoWeight = "kTypoWeight";             // double: 0, 0.5 or 1
inline constexpr const char* CountCase = "kCountCase";               // bool
inline constexpr const char* CheckAsIType = "kCheckAsIType";         // bool
} // namespace PreferenceKeys

// The practice loop.
namespace PreferenceKeys {
inline constexpr const char* RepeatGap = "kRepeatGap";                   // double s, 0..10 by 0.5
inline constexpr const char* RepeatUntilMovedOn = "kRepeatUntilMovedOn"; // bool
inline constexpr const char* SlowerFirst = "kSlowerFirst";               // bool
inline constexpr const char* RewindOnResume = "kRewindOnResume";         // double s, 0..5
inline constexpr const char* HoldToPlay = "kHoldToPlay";                 // bool
inline constexpr const char* HardSentenceThreshold = "kHardSentenceThreshold"; // double, 0..1
} // namespace PreferenceKeys
