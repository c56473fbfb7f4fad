// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <array>

// Every user-visible text, declared once, in English: the English text is the
// lookup key (LocalizedString) and the source text of the translation files in
// translations/. Call sites use these constants; lupdate finds them through
// QT_TRANSLATE_NOOP. A text with a format placeholder ("%@", "%llu") keeps it in
// every language.
namespace Texts {

// Main window, menus, help
inline constexpr const char* AppName = QT_TRANSLATE_NOOP("Localizable", "Kelmora");
inline constexpr const char* NoAudioFileOpened =
    QT_TRANSLATE_NOOP("Localizable", "No audio file opened");
inline constexpr const char* Preferences = QT_TRANSLATE_NOOP("Localizable", "Preferences");
inline constexpr const char* Help = QT_TRANSLATE_NOOP("Localizable", "Help");
inline constexpr const char* OK = QT_TRANSLATE_NOOP("Localizable", "OK");
inline constexpr const char* Cancel = QT_TRANSLATE_NOOP("Localizable", "Cancel");
inline constexpr const char* Save = QT_TRANSLATE_NOOP("Localizable", "Save");
inline constexpr const char* DontSave = QT_TRANSLATE_NOOP("Localizable", "Don't Save");
inline constexpr const char* Later = QT_TRANSLATE_NOOP("Localizable", "Later");
inline constexpr const char* SaveDictationTitle =
    QT_TRANSLATE_NOOP("Localizable", "Save Dictation?");
inline constexpr const char* SaveDictationMessage =
    QT_TRANSLATE_NOOP("Localizable", "Do you want to save the dictation before closing?");
inline constexpr const char* ErrorOpeningFile =
    QT_TRANSLATE_NOOP("Localizable", "Error Opening File");

// Opening a file
inline constexpr const char* InvalidFileType =
    QT_TRANSLATE_NOOP("Localizable", "Invalid File Type");
inline constexpr const char* SelectSupportedAudioFile =
    QT_TRANSLATE_NOOP("Localizable", "Please select a supported audio file");
inline constexpr const char* FileAccessError =
    QT_TRANSLATE_NOOP("Localizable", "File Access Error");
inline constexpr const char* FileTooLarge = QT_TRANSLATE_NOOP("Localizable", "File Too Large");
inline constexpr const char* SelectSmallerFile =
    QT_TRANSLATE_NOOP("Localizable", "Please select an audio file smaller than %llu MB");
inline constexpr const char* Error = QT_TRANSLATE_NOOP("Localizable", "Error");
inline constexpr const char* FailedToProcessAudio =
    QT_TRANSLATE_NOOP("Localizable", "Failed to process audio file");
inline constexpr const char* GrantFolderAccessMessage = QT_TRANSLATE_NOOP(
    "Localizable", "Please grant access to the folder containing your audio files");
inline constexpr const char* GrantAccess = QT_TRANSLATE_NOOP("Localizable", "Grant Access");

// Transcripts: export, import, clear
inline constexpr const char* SaveTranscript = QT_TRANSLATE_NOOP("Localizable", "Save Transcript");
inline constexpr const char* SaveError = QT_TRANSLATE_NOOP("Localizable", "Save Error");
inline constexpr const char* ErrorWritingToFile =
    QT_TRANSLATE_NOOP("Localizable", "Error writing to file");
inline constexpr const char* Warning = QT_TRANSLATE_NOOP("Localizable", "Warning");
inline constexpr const char* OpenAudioFileFirst =
    QT_TRANSLATE_NOOP("Localizable", "Please open an audio file first");
inline constexpr const char* FailedToLoadTranscription =
    QT_TRANSLATE_NOOP("Localizable", "Failed to load transcription");
inline constexpr const char* InvalidFile = QT_TRANSLATE_NOOP("Localizable", "Invalid File");
inline constexpr const char* LyricDurationTooLong =
    QT_TRANSLATE_NOOP("Localizable", "lyric duration is too long");
inline constexpr const char* ConfirmClearDictation =
    QT_TRANSLATE_NOOP("Localizable", "Are you sure to clear dictation?");

// Status bar
inline constexpr const char* Samples = QT_TRANSLATE_NOOP("Localizable", "Samples");
inline constexpr const char* Duration = QT_TRANSLATE_NOOP("Localizable", "Duration");
inline constexpr const char* Segments = QT_TRANSLATE_NOOP("Localizable", "Segments");
inline constexpr const char* Play = QT_TRANSLATE_NOOP("Localizable", "Play");
inline constexpr const char* Pause = QT_TRANSLATE_NOOP("Localizable", "Pause");
inline constexpr const char* Repeat = QT_TRANSLATE_NOOP("Localizable", "Repeat");
inline constexpr const char* Forward = QT_TRANSLATE_NOOP("Localizable", "Forward");

// Transcription table header
inline constexpr const char* Segment = QT_TRANSLATE_NOOP("Localizable", "Segment");
inline constexpr const char* Dictation = QT_TRANSLATE_NOOP("Localizable", "Dictation");
inline constexpr const char* DictationAfterSeparator =
    QT_TRANSLATE_NOOP("Localizable", "|Dictation");

// Preferences panel: language names, repeat-count input, reset, restart prompt
inline constexpr const char* English = QT_TRANSLATE_NOOP("Localizable", "English");
inline constexpr const char* ChineseSimplified =
    QT_TRANSLATE_NOOP("Localizable", "Chinese(Simplified)");
inline constexpr const char* Spanish = QT_TRANSLATE_NOOP("Localizable", "Spanish");
inline constexpr const char* Japanese = QT_TRANSLATE_NOOP("Localizable", "Japanese");
inline constexpr const char* Korean = QT_TRANSLATE_NOOP("Localizable", "Korean");
inline constexpr const char* German = QT_TRANSLATE_NOOP("Localizable", "German");
inline constexpr const char* French = QT_TRANSLATE_NOOP("Localizable", "French");
inline constexpr const char* Russian = QT_TRANSLATE_NOOP("Localizable", "Russian");
inline constexpr const char* Thai = QT_TRANSLATE_NOOP("Localizable", "Thai");
inline constexpr const char* Vietnamese = QT_TRANSLATE_NOOP("Localizable", "Vietnamese");
inline constexpr const char* InputTooLong =
    QT_TRANSLATE_NOOP("Localizable", "Input must not exceed 6 digits");
inline constexpr const char* InvalidInput = QT_TRANSLATE_NOOP("Localizable", "Invalid input: %@");
inline constexpr const char* SettingsReset = QT_TRANSLATE_NOOP("Localizable", "Settings Reset");
inline constexpr const char* SettingsRestored =
    QT_TRANSLATE_NOOP("Localizable", "All settings have been restored to their default values");
// The misspelling is the lookup key used by earlier versions; it is shown as "Warning".
inline constexpr const char* RestartTitle = QT_TRANSLATE_NOOP("Localizable", "Warnning");
inline constexpr const char* RestartMessage =
    QT_TRANSLATE_NOOP("Localizable", "Please restart the app to apply the new language.");
inline constexpr const char* RestartNow = QT_TRANSLATE_NOOP("Localizable", "Restart Now");

// Update check
inline constexpr const char* ErrorCheckingForUpdates =
    QT_TRANSLATE_NOOP("Localizable", "Error checking for updates");
inline constexpr const char* ErrorParsingUpdatesJson =
    QT_TRANSLATE_NOOP("Localizable", "Error parsing updates JSON");
inline constexpr const char* AlreadyLatestVersion =
    QT_TRANSLATE_NOOP("Localizable", "App is already the latest version");
inline constexpr const char* UpdateAvailable = QT_TRANSLATE_NOOP("Localizable", "Update Available");
inline constexpr const char* UpdateAvailableMessage =
    QT_TRANSLATE_NOOP("Localizable", "Version %@ is available.\n\nRelease Notes:\n%@");
inline constexpr const char* NoReleaseNotes =
    QT_TRANSLATE_NOOP("Localizable", "No release notes available");
inline constexpr const char* Update = QT_TRANSLATE_NOOP("Localizable", "Update");

// The window: menus (with their mnemonics; a translation places its own),
// toolbar, tooltips, the analysis indicator
inline constexpr const char* AudioFiles = QT_TRANSLATE_NOOP("Localizable", "Audio Files");
inline constexpr const char* AnalysingAudio = QT_TRANSLATE_NOOP("Localizable", "Analysing audio");
inline constexpr const char* Waveform = QT_TRANSLATE_NOOP("Localizable", "Waveform");
inline constexpr const char* MenuFile = QT_TRANSLATE_NOOP("Localizable", "&File");
inline constexpr const char* MenuOpen = QT_TRANSLATE_NOOP("Localizable", "&Open…");
inline constexpr const char* MenuOpenRecent = QT_TRANSLATE_NOOP("Localizable", "Open &Recent");
inline constexpr const char* MenuClearRecent = QT_TRANSLATE_NOOP("Localizable", "&Clear Menu");
inline constexpr const char* MenuExport = QT_TRANSLATE_NOOP("Localizable", "&Export Dictation…");
inline constexpr const char* MenuQuit = QT_TRANSLATE_NOOP("Localizable", "&Quit Kelmora");
inline constexpr const char* MenuView = QT_TRANSLATE_NOOP("Localizable", "&View");
inline constexpr const char* MenuWindowSize = QT_TRANSLATE_NOOP("Localizable", "&Window Size");
inline constexpr const char* MenuPreferences = QT_TRANSLATE_NOOP("Localizable", "&Preferences…");
inline constexpr const char* MenuCheckForUpdates = QT_TRANSLATE_NOOP("Localizable", "&Check for Updates…");
inline constexpr const char* MenuKelmoraHelp = QT_TRANSLATE_NOOP("Localizable", "Kelmora &Help");
inline constexpr const char* ToolbarOpen = QT_TRANSLATE_NOOP("Localizable", "Open");
inline constexpr const char* ToolbarPlayPause = QT_TRANSLATE_NOOP("Localizable", "Play/Pause");
inline constexpr const char* ToolbarExport = QT_TRANSLATE_NOOP("Localizable", "Export");
inline constexpr const char* ToolbarSettings = QT_TRANSLATE_NOOP("Localizable", "Settings");
inline constexpr const char* ToolbarImport = QT_TRANSLATE_NOOP("Localizable", "Import");
inline constexpr const char* ToolbarClear = QT_TRANSLATE_NOOP("Localizable", "Clear");
inline constexpr const char* ToolbarMusic = QT_TRANSLATE_NOOP("Localizable", "Music");
inline constexpr const char* TipOpen = QT_TRANSLATE_NOOP("Localizable", "Open an audio file");
inline constexpr const char* TipPlayPause = QT_TRANSLATE_NOOP("Localizable", "Play or pause the current segment");
inline constexpr const char* TipRepeat = QT_TRANSLATE_NOOP("Localizable", "Repeat each segment, or play on to the next");
inline constexpr const char* TipExport = QT_TRANSLATE_NOOP("Localizable", "Export the dictation as an LRC file");
inline constexpr const char* TipSettings = QT_TRANSLATE_NOOP("Localizable", "Open the preferences");
inline constexpr const char* TipImport = QT_TRANSLATE_NOOP("Localizable", "Import a dictation from an LRC file");
inline constexpr const char* TipClear = QT_TRANSLATE_NOOP("Localizable", "Clear the dictation");
inline constexpr const char* TipMusic = QT_TRANSLATE_NOOP("Localizable", "Open a file from your music folder");
inline constexpr const char* Toolbar = QT_TRANSLATE_NOOP("Localizable", "Toolbar");
inline constexpr const char* StatusBar = QT_TRANSLATE_NOOP("Localizable", "Status bar");

// All of the above, for the completeness check of the translations.
inline constexpr std::array All = {AppName,
                                   NoAudioFileOpened,
                                   Preferences,
                                   Help,
                                   OK,
                                   Cancel,
                                   Save,
                                   DontSave,
                                   Later,
                                   SaveDictationTitle,
                                   SaveDictationMessage,
                                   ErrorOpeningFile,
                                   InvalidFileType,
                                   SelectSupportedAudioFile,
                                   FileAccessError,
                                   FileTooLarge,
                                   SelectSmallerFile,
                                   Error,
                                   FailedToProcessAudio,
                                   GrantFolderAccessMessage,
                                   GrantAccess,
                                   SaveTranscript,
                                   SaveError,
                                   ErrorWritingToFile,
                                   Warning,
                                   OpenAudioFileFirst,
                                   FailedToLoadTranscription,
                                   InvalidFile,
                                   LyricDurationTooLong,
                                   ConfirmClearDictation,
                                   Samples,
                                   Duration,
                                   Segments,
                                   Play,
                                   Pause,
                                   Repeat,
                                   Forward,
                                   Segment,
                                   Dictation,
                                   DictationAfterSeparator,
                                   English,
                                   ChineseSimplified,
                                   Spanish,
                                   Japanese,
                                   Korean,
                                   German,
                                   French,
                                   Russian,
                                   Thai,
                                   Vietnamese,
                                   InputTooLong,
                                   InvalidInput,
                                   SettingsReset,
                                   SettingsRestored,
                                   RestartTitle,
                                   RestartMessage,
                                   RestartNow,
                                   ErrorCheckingForUpdates,
                                   ErrorParsingUpdatesJson,
                                   AlreadyLatestVersion,
                                   UpdateAvailable,
                                   UpdateAvailableMessage,
                                   NoReleaseNotes,
                                   Update,
                                   AudioFiles,
                                   AnalysingAudio,
                                   Waveform,
                                   MenuFile,
                                   MenuOpen,
                                   MenuOpenRecent,
                                   MenuClearRecent,
                                   MenuExport,
                                   MenuQuit,
                                   MenuView,
                                   MenuWindowSize,
                                   MenuPreferences,
                                   MenuCheckForUpdates,
                                   MenuKelmoraHelp,
                                   ToolbarOpen,
                                   ToolbarPlayPause,
                                   ToolbarExport,
                                   ToolbarSettings,
                                   ToolbarImport,
                                   ToolbarClear,
                                   ToolbarMusic,
                                   TipOpen,
                                   TipPlayPause,
                                   TipRepeat,
                                   TipExport,
                                   TipSettings,
                                   TipImport,
                                   TipClear,
                                   TipMusic,
                                   Toolbar,
                                   StatusBar};

} // namespace Texts

// The preferences window: tabs, labels, switches, the shortcut fields' commands
namespace Texts {

inline constexpr const char* TabGeneral = QT_TRANSLATE_NOOP("Localizable", "General");
inline constexpr const char* TabAppearance = QT_TRANSLATE_NOOP("Localizable", "Appearance");
inline constexpr const char* TabShortcuts = QT_TRANSLATE_NOOP("Localizable", "Shortcuts");
inline constexpr const char* MinSegmentDurationLabel =
    QT_TRANSLATE_NOOP("Localizable", "Shortest segment (seconds)");
inline constexpr const char* PlaySpeedLabel = QT_TRANSLATE_NOOP("Localizable", "Play speed");
inline constexpr const char* RepeatTimesLabel =
    QT_TRANSLATE_NOOP("Localizable", "Plays of each segment in repeat mode");
inline constexpr const char* LanguageLabel = QT_TRANSLATE_NOOP("Localizable", "Language");
inline constexpr const char* LanguageRestartNote =
    QT_TRANSLATE_NOOP("Localizable", "A new language shows after a restart.");
inline constexpr const char* TableBackgroundLabel =
    QT_TRANSLATE_NOOP("Localizable", "Table background");
inline constexpr const char* TextColorLabel = QT_TRANSLATE_NOOP("Localizable", "Text colour");
inline constexpr const char* FontLabel = QT_TRANSLATE_NOOP("Localizable", "Font");
inline constexpr const char* ShowLineNumbersLabel =
    QT_TRANSLATE_NOOP("Localizable", "Show line numbers");
inline constexpr const char* ShowAudioWaveLabel =
    QT_TRANSLATE_NOOP("Localizable", "Show the waveform");
inline constexpr const char* ShowStatusBarLabel =
    QT_TRANSLATE_NOOP("Localizable", "Show the status bar");
inline constexpr const char* ShortcutPrevious =
    QT_TRANSLATE_NOOP("Localizable", "Previous segment");
inline constexpr const char* ShortcutNext = QT_TRANSLATE_NOOP("Localizable", "Next segment");
inline constexpr const char* ShortcutPlayPause = QT_TRANSLATE_NOOP("Localizable", "Play or pause");
inline constexpr const char* ShortcutRepeatPlay = QT_TRANSLATE_NOOP("Localizable", "Repeat mode");
inline constexpr const char* ShortcutPlayFirst = QT_TRANSLATE_NOOP("Localizable", "First segment");
inline constexpr const char* ShortcutSplitAudio =
    QT_TRANSLATE_NOOP("Localizable", "Split the audio again");
inline constexpr const char* ShortcutHint = QT_TRANSLATE_NOOP(
    "Localizable", "Click a field and press the new key. Click elsewhere to finish.");
inline constexpr const char* ResetToDefaults =
    QT_TRANSLATE_NOOP("Localizable", "Reset to Defaults");
inline constexpr const char* ChooseFont = QT_TRANSLATE_NOOP("Localizable", "Choose the dictation font");

inline constexpr std::array PreferencesWindow = {
    TabGeneral,         TabAppearance,       TabShortcuts,         MinSegmentDurationLabel,
    PlaySpeedLabel,     RepeatTimesLabel,    LanguageLabel,        LanguageRestartNote,
    TableBackgroundLabel, TextColorLabel,    FontLabel,            ShowLineNumbersLabel,
    ShowAudioWaveLabel, ShowStatusBarLabel,  ShortcutPrevious,     ShortcutNext,
    ShortcutPlayPause,  ShortcutRepeatPlay,  ShortcutPlayFirst,    ShortcutSplitAudio,
    ShortcutHint,       ResetToDefaults,     ChooseFont};

// The empty window. %@ is the Open command's key as the menu shows it.
inline constexpr const char* EmptyWindowHint =
    QT_TRANSLATE_NOOP("Localizable", "Open a recording with %@ or drop it here");

inline constexpr std::array EmptyWindow = {EmptyWindowHint};

} // namespace Texts

// Opening and saving: transcript panels, an import during an analysis
namespace Texts {

inline constexpr const char* TranscriptFiles = QT_TRANSLATE_NOOP("Localizable", "Transcripts");
inline constexpr const char* StillAnalysing = QT_TRANSLATE_NOOP(
    "Localizable", "The lesson is still being analysed. Import the dictation once it has opened.");

inline constexpr std::array SessionFiles = {TranscriptFiles, StillAnalysing};

} // namespace Texts

// Every command from the keyboard: the menus' further items, and the help
// alert that names the keys in use.
namespace Texts {

inline constexpr const char* MenuEdit = QT_TRANSLATE_NOOP("Localizable", "&Edit");
inline constexpr const char* MenuPlayback = QT_TRANSLATE_NOOP("Localizable", "&Playback");
// The menu's title; "Help" alone stays the help alert's title.
inline constexpr const char* MenuHelp = QT_TRANSLATE_NOOP("Localizable", "&Help");
inline constexpr const char* MenuImportDictation =
    QT_TRANSLATE_NOOP("Localizable", "&Import Dictation…");
inline constexpr const char* MenuImportFromMusic =
    QT_TRANSLATE_NOOP("Localizable", "Import from &Music Folder…");
inline constexpr const char* MenuClearDictation =
    QT_TRANSLATE_NOOP("Localizable", "&Clear Dictation…");
inline constexpr const char* MenuPlayPause = QT_TRANSLATE_NOOP("Localizable", "&Play/Pause");
inline constexpr const char* MenuPreviousSegment =
    QT_TRANSLATE_NOOP("Localizable", "Pre&vious Segment");
inline constexpr const char* MenuNextSegment = QT_TRANSLATE_NOOP("Localizable", "&Next Segment");
inline constexpr const char* MenuRepeatMode = QT_TRANSLATE_NOOP("Localizable", "&Repeat Mode");
inline constexpr const char* MenuFirstSegment = QT_TRANSLATE_NOOP("Localizable", "&First Segment");
inline constexpr const char* MenuSplitAudio =
    QT_TRANSLATE_NOOP("Localizable", "&Split the Audio Again");
// The keys are filled in as they are bound now: open, play/pause, next,
// previous, repeat, first segment, split, export.
inline constexpr const char* HelpGuide = QT_TRANSLATE_NOOP(
    "Localizable",
    "Quick Help Guide:\n\n1. Open Audio File: %@\n2. Play/Pause: %@\n3. Next Segment: %@\n4. "
    "Previous Segment: %@\n5. Repeat Mode: %@\n6. First Segment: %@\n7. Split the Audio Again: "
    "%@\n8. Export Dictation: %@\n\nIf you have any questions, email me: support@kelmora.app.");

inline constexpr std::array KeyboardCommands = {
    MenuEdit,         MenuPlayback,        MenuHelp,        MenuImportDictation,
    MenuImportFromMusic, MenuClearDictation, MenuPlayPause, MenuPreviousSegment,
    MenuNextSegment,  MenuRepeatMode,      MenuFirstSegment, MenuSplitAudio,
    HelpGuide};

} // namespace Texts

// A reference text and the check against it: the commands, the file panel,
// what cannot be read, the check bar and its spoken summary, the row marks,
// the preferences.
namespace Texts {

inline constexpr const char* MenuAttachReference =
    QT_TRANSLATE_NOOP("Localizable", "&Attach Reference Text…");
inline constexpr const char* MenuRemoveReference =
    QT_TRANSLATE_NOOP("Localizable", "Remo&ve Reference Text");
inline constexpr const char* MenuCheck = QT_TRANSLATE_NOOP("Localizable", "Chec&k Segment");
inline constexpr const char* MenuShowNextWord =
    QT_TRANSLATE_NOOP("Localizable", "Show Next &Word");
inline constexpr const char* ToolbarReference = QT_TRANSLATE_NOOP("Localizable", "Reference");
inline constexpr const char* ToolbarCheck = QT_TRANSLATE_NOOP("Localizable", "Check");
inline constexpr const char* TipReference = QT_TRANSLATE_NOOP(
    "Localizable", "Attach the lesson's text (.txt, .srt, .vtt or .lrc) to check your typing");
inline constexpr const char* TipCheck =
    QT_TRANSLATE_NOOP("Localizable", "Check the current segment against the reference text");
inline constexpr const char* ReferenceFiles =
    QT_TRANSLATE_NOOP("Localizable", "Reference Texts");

// Alerts; %@ is the file's name.
inline constexpr const char* CannotReadReference =
    QT_TRANSLATE_NOOP("Localizable", "Cannot Read Reference Text");
inline constexpr const char* CannotStoreReference =
    QT_TRANSLATE_NOOP("Localizable", "Cannot Store Reference Text");
inline constexpr const char* ReferenceUnreadable =
    QT_TRANSLATE_NOOP("Localizable", "“%@” could not be read.");
inline constexpr const char* ReferenceUnknownFormat =
    QT_TRANSLATE_NOOP("Localizable", "“%@” is not a .txt, .srt, .vtt or .lrc file.");
inline constexpr const char* ReferenceTooLarge =
    QT_TRANSLATE_NOOP("Localizable", "“%@” is larger than 16 MB.");
inline constexpr const char* ReferenceNotText =
    QT_TRANSLATE_NOOP("Localizable", "“%@” is not a text file.");
inline constexpr const char* ReferenceNotUtf8 =
    QT_TRANSLATE_NOOP("Localizable", "“%@” is not UTF-8 text.");
inline constexpr const char* ReferenceEmpty = QT_TRANSLATE_NOOP("Localizable", "“%@” is empty.");
inline constexpr const char* ReferenceNotWebVtt =
    QT_TRANSLATE_NOOP("Localizable", "“%@” does not start with WEBVTT.");
inline constexpr const char* ReferenceNothingUsable =
    QT_TRANSLATE_NOOP("Localizable", "“%@” has no text within the recording.");

// The check bar. %@ in CheckBarPrompt is the Check command's key.
inline constexpr const char* CheckBarPrompt =
    QT_TRANSLATE_NOOP("Localizable", "Press %@ to check this segment.");
inline constexpr const char* CheckBarNextWord = QT_TRANSLATE_NOOP("Localizable", "Next word: %@");
inline constexpr const char* CheckBarAllTyped =
    QT_TRANSLATE_NOOP("Localizable", "Every word is typed.");

// The check in one sentence: the check bar's accessible name. %@ in the
// scores is a percentage ("67%").
inline constexpr const char* SummaryNoReferenceWords =
    QT_TRANSLATE_NOOP("Localizable", "No reference words for this segment.");
inline constexpr const char* SummaryNoMistakes = QT_TRANSLATE_NOOP("Localizable", "No mistakes.");
inline constexpr const char* SummaryOneMistake =
    QT_TRANSLATE_NOOP("Localizable", "1 mistake: %@.");
inline constexpr const char* SummaryMistakes =
    QT_TRANSLATE_NOOP("Localizable", "%@ mistakes: %@.");
inline constexpr const char* SummaryShouldBe =
    QT_TRANSLATE_NOOP("Localizable", "'%@' should be '%@'");
inline constexpr const char* SummaryMissing = QT_TRANSLATE_NOOP("Localizable", "missing '%@'");
inline constexpr const char* SummaryExtra = QT_TRANSLATE_NOOP("Localizable", "extra '%@'");
inline constexpr const char* SummarySegmentScore = QT_TRANSLATE_NOOP("Localizable", "Segment %@");
inline constexpr const char* SummaryLessonAfterSegment =
    QT_TRANSLATE_NOOP("Localizable", "lesson %@");
inline constexpr const char* SummaryLessonScore = QT_TRANSLATE_NOOP("Localizable", "Lesson %@");

// The mark by a checked row's number, for a tooltip and a screen reader.
inline constexpr const char* RowMarkPerfect =
    QT_TRANSLATE_NOOP("Localizable", "Checked: no mistakes");
inline constexpr const char* RowMarkTypos = QT_TRANSLATE_NOOP("Localizable", "Checked: typos only");
inline constexpr const char* RowMarkMistakes =
    QT_TRANSLATE_NOOP("Localizable", "Checked: mistakes");

// Preferences: the check's options and its two keys.
inline constexpr const char* PrefChecking = QT_TRANSLATE_NOOP("Localizable", "Checking");
inline constexpr const char* PrefCountPunctuation =
    QT_TRANSLATE_NOOP("Localizable", "Count punctuation");
inline constexpr const char* PrefTypoWeight = QT_TRANSLATE_NOOP("Localizable", "Typo weight:");
inline constexpr const char* PrefCountCase = QT_TRANSLATE_NOOP("Localizable", "Count case");
inline constexpr const char* PrefCheckAsIType =
    QT_TRANSLATE_NOOP("Localizable", "Check as I type");
inline constexpr const char* ShortcutCheck = QT_TRANSLATE_NOOP("Localizable", "Check segment");
inline constexpr const char* ShortcutShowNextWord =
    QT_TRANSLATE_NOOP("Localizable", "Show next word");

inline constexpr std::array ReferenceCheck = {
    MenuAttachReference, MenuRemoveReference, MenuCheck, MenuShowNextWord, ToolbarReference,
    ToolbarCheck, TipReference, TipCheck, ReferenceFiles, CannotReadReference,
    CannotStoreReference, ReferenceUnreadable, ReferenceUnknownFormat, ReferenceTooLarge,
    ReferenceNotText, ReferenceNotUtf8, ReferenceEmpty, ReferenceNotWebVtt,
    ReferenceNothingUsable, CheckBarPrompt, CheckBarNextWord, CheckBarAllTyped,
    SummaryNoReferenceWords, SummaryNoMistakes, SummaryOneMistake, SummaryMistakes,
    SummaryShouldBe, SummaryMissing, SummaryExtra, SummarySegmentScore,
    SummaryLessonAfterSegment, SummaryLessonScore, RowMarkPerfect, RowMarkTypos,
    RowMarkMistakes, PrefChecking, PrefCountPunctuation, PrefTypoWeight, PrefCountCase,
    PrefCheckAsIType, ShortcutCheck, ShortcutShowNextWord};

} // namespace Texts

// The typing journal: the status bar's word after typing came back, and when
// the journal cannot be written.
namespace Texts {

inline constexpr const char* RecoveredTyping =
    QT_TRANSLATE_NOOP("Localizable", "Recovered typing from your last session");
inline constexpr const char* JournalFailed = QT_TRANSLATE_NOOP(
    "Localizable", "Typing since the last save is not protected: the journal cannot be written");

inline constexpr std::array Journal = {RecoveredTyping, JournalFailed};

} // namespace Texts

// Saves that did not reach the disk, and transcripts that are refused before
// they are read.
namespace Texts {

inline constexpr const char* SaveFailedNotice = QT_TRANSLATE_NOOP(
    "Localizable",
    "Your typing could not be saved to disk; Kelmora will try again at the next save");
inline constexpr const char* LastSaveFailed = QT_TRANSLATE_NOOP(
    "Localizable", "The last save failed: what you typed since then may not be on disk.");
inline constexpr const char* TranscriptTooLarge =
    QT_TRANSLATE_NOOP("Localizable", "The transcript is larger than 16 MB and was not read.");
inline constexpr const char* TranscriptNotAFile =
    QT_TRANSLATE_NOOP("Localizable", "The transcript is not a regular file and was not read.");

inline constexpr std::array SaveFaults = {SaveFailedNotice, LastSaveFailed, TranscriptTooLarge,
                                          TranscriptNotAFile};

} // namespace Texts

// A store file that could not be used is set aside before a save replaces
// it, and can be brought back from the File menu.
namespace Texts {

inline constexpr const char* MenuRecoverDictation =
    QT_TRANSLATE_NOOP("Localizable", "Recover Earlier &Dictation…");
inline constexpr const char* StoreSetAside = QT_TRANSLATE_NOOP(
    "Localizable", "A saved dictation that could not be used was set aside; File → Recover "
                   "Earlier Dictation… brings it back");
inline constexpr const char* RecoverTitle =
    QT_TRANSLATE_NOOP("Localizable", "Recover Earlier Dictation");
inline constexpr const char* RecoverPrompt = QT_TRANSLATE_NOOP(
    "Localizable", "Versions of this lesson's dictation that were set aside, newest first:");
inline constexpr const char* RecoverButton = QT_TRANSLATE_NOOP("Localizable", "Recover");
inline constexpr const char* NothingSetAside = QT_TRANSLATE_NOOP(
    "Localizable", "No earlier dictation of this recording was set aside.");
inline constexpr const char* StoreSetAsideFailed = QT_TRANSLATE_NOOP(
    "Localizable",
    "A saved dictation that could not be used could not be set aside; it is not saved over");

inline constexpr std::array Recovery = {MenuRecoverDictation, StoreSetAside,   RecoverTitle,
                                        RecoverPrompt,        RecoverButton,   NothingSetAside,
                                        StoreSetAsideFailed};

} // namespace Texts

// A dictation typed for the same recording under another file (moved, copied
// or re-tagged): the sheet offering it when a lesson opens with none. %1 is
// the audio file it was saved for, %2 when.
namespace Texts {

inline constexpr const char* FoundDictation = QT_TRANSLATE_NOOP(
    "Localizable",
    "Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?");
inline constexpr const char* UseIt = QT_TRANSLATE_NOOP("Localizable", "Use It");
inline constexpr const char* NotNow = QT_TRANSLATE_NOOP("Localizable", "Not Now");

inline constexpr std::array Fingerprint = {FoundDictation, UseIt, NotNow};

} // namespace Texts

// Fixing the cutting by hand: split, merge, a moved boundary, and their undo.
// %@ in MenuUndoNamed and MenuRedoNamed is the command's name.
namespace Texts {

inline constexpr const char* MenuSplitSegment =
    QT_TRANSLATE_NOOP("Localizable", "Spli&t Segment at Play Head");
inline constexpr const char* MenuMergeSegments =
    QT_TRANSLATE_NOOP("Localizable", "&Merge with Next Segment");
inline constexpr const char* MenuUndo = QT_TRANSLATE_NOOP("Localizable", "&Undo");
inline constexpr const char* MenuRedo = QT_TRANSLATE_NOOP("Localizable", "&Redo");
inline constexpr const char* MenuUndoNamed = QT_TRANSLATE_NOOP("Localizable", "&Undo %@");
inline constexpr const char* MenuRedoNamed = QT_TRANSLATE_NOOP("Localizable", "&Redo %@");
inline constexpr const char* EditSplit = QT_TRANSLATE_NOOP("Localizable", "Split Segment");
inline constexpr const char* EditMerge = QT_TRANSLATE_NOOP("Localizable", "Merge Segments");
inline constexpr const char* EditMove = QT_TRANSLATE_NOOP("Localizable", "Move Boundary");
inline constexpr const char* EditClear = QT_TRANSLATE_NOOP("Localizable", "Clear Dictation");
inline constexpr const char* EditImport = QT_TRANSLATE_NOOP("Localizable", "Import Dictation");
inline constexpr const char* ToolbarSplit = QT_TRANSLATE_NOOP("Localizable", "Split");
inline constexpr const char* TipSplit =
    QT_TRANSLATE_NOOP("Localizable", "Split the segment in two at the play head");
inline constexpr const char* SplitRefused = QT_TRANSLATE_NOOP(
    "Localizable",
    "Nothing was split: each part of a segment must be at least 0.1 seconds long");
inline constexpr const char* MenuStartEarlier =
    QT_TRANSLATE_NOOP("Localizable", "Move Segment Start &Earlier");
inline constexpr const char* MenuStartLater =
    QT_TRANSLATE_NOOP("Localizable", "Move Segment Start &Later");
inline constexpr const char* ShortcutSplit =
    QT_TRANSLATE_NOOP("Localizable", "Split segment");
inline constexpr const char* ShortcutMerge =
    QT_TRANSLATE_NOOP("Localizable", "Merge with next");

inline constexpr std::array Cutting = {
    MenuSplitSegment, MenuMergeSegments, MenuUndo,  MenuRedo,     MenuUndoNamed, MenuRedoNamed,
    EditSplit,        EditMerge,         EditMove,  EditClear,    EditImport,    ToolbarSplit,
    TipSplit,         SplitRefused,      MenuStartEarlier, MenuStartLater, ShortcutSplit,
    ShortcutMerge};

} // namespace Texts

// The practice record of each segment (the row's tooltip), the hard
// sentences and the reviews that are due. Each %d is a count, each %@ in
// PracticeScores a percentage, in PracticeSaveFailed and PracticeUnreadable
// what went wrong.
namespace Texts {

inline constexpr const char* MenuPractiseHard =
    QT_TRANSLATE_NOOP("Localizable", "Practise &Hard Sentences");
inline constexpr const char* ShortcutPractiseHard =
    QT_TRANSLATE_NOOP("Localizable", "Practise hard sentences");
inline constexpr const char* HardSentencesLeft =
    QT_TRANSLATE_NOOP("Localizable", "Hard sentences: %d left");
inline constexpr const char* NoHardSentences =
    QT_TRANSLATE_NOOP("Localizable", "No hard sentences in this lesson");
inline constexpr const char* DueForReview = QT_TRANSLATE_NOOP("Localizable", "%d due for review");
inline constexpr const char* PracticeCheckedOnce = QT_TRANSLATE_NOOP("Localizable", "Checked once");
inline constexpr const char* PracticeCheckedTimes =
    QT_TRANSLATE_NOOP("Localizable", "Checked %d times");
inline constexpr const char* PracticeOneHint = QT_TRANSLATE_NOOP("Localizable", "1 hint");
inline constexpr const char* PracticeHints = QT_TRANSLATE_NOOP("Localizable", "%d hints");
inline constexpr const char* PracticeScores =
    QT_TRANSLATE_NOOP("Localizable", "last %@, best %@");
inline constexpr const char* PracticeMinutes = QT_TRANSLATE_NOOP("Localizable", "%d min %d s");
inline constexpr const char* PracticeSeconds = QT_TRANSLATE_NOOP("Localizable", "%d s");
inline constexpr const char* PracticeSaveFailed =
    QT_TRANSLATE_NOOP("Localizable", "Your practice record could not be saved: %@");
inline constexpr const char* PracticeUnreadable = QT_TRANSLATE_NOOP(
    "Localizable", "Your practice record could not be read and is not saved over: %@");

inline constexpr std::array Practice = {
    MenuPractiseHard,     ShortcutPractiseHard, HardSentencesLeft,  NoHardSentences,
    DueForReview,         PracticeCheckedOnce,  PracticeCheckedTimes, PracticeOneHint,
    PracticeHints,        PracticeScores,       PracticeMinutes,    PracticeSeconds,
    PracticeSaveFailed,   PracticeUnreadable};

} // namespace Texts
