// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Every notification name the application posts, declared once. Each line says
// who posts it and what it carries; observers and posters use these constants.

namespace Notifications {

// AudioManager::updateSegments. Object: the engine; userInfo {"segments": QList<Segment>}.
inline constexpr const char* AudioManagerSegmentsDidUpdate = "AudioManagerSegmentsDidUpdate";

// LanguageManager::changeLanguage. No object; userInfo {"language": new code,
// "oldLanguage": previous code}.
inline constexpr const char* LanguageDidChangeNotification = "LanguageDidChangeNotification";
// Playback state. Posted by the engine (AudioManager+Playback) with the engine
// as object and userInfo {"status": int}: 0 stopped, 1 playing, 2 paused, 3 resumed.
// play: {"status": 1}.
inline constexpr const char* AudioPlaying = "AudioPlaying";
// pause: {"status": 2}; pausePlayback: {"status": 0}.
inline constexpr const char* AudioPlaybackDidPause = "AudioPlaybackDidPause";
// resumePlayback: {"status": 3}.
inline constexpr const char* AudioPlaybackDidResume = "AudioPlaybackDidResume";
// stop (also from closeAudioFile): {"status": 0}.
inline constexpr const char* AudioPlayStop = "AudioPlayStop";
// The engine's position ticker, every 1/12 s. Object: the engine; userInfo
// {"position": double seconds}.
inline constexpr const char* AudioPlaybackPositionDidUpdate = "AudioPlaybackPositionDidUpdate";
// The engine's segment-end timer. Object: bool, false in repeat mode (the
// completion handler follows), true otherwise (the display should follow the
// playing position). No userInfo.
inline constexpr const char* AutoUpdateWavePosDidUpdate = "AutoUpdateWavePosDidUpdate";
// AudioManager::setPlaybackRate, when the rate changed. Object: the engine;
// no userInfo.
inline constexpr const char* AudioPlaybackRateDidChange = "AudioPlaybackRateDidChange";
// AudioManager::closeAudioFile, after AudioPlayStop. Object: the engine; no userInfo.
inline constexpr const char* AudioFileDidClose = "AudioFileDidClose";


// A click on the waveform strip selected a segment (WaveformView). Object: the
// segment index (qint64); no userInfo.
inline constexpr const char* MouseDownSelectSegment = "MouseDownSelectSegment";

// The look and layout of the window, posted by the preferences panel (and the
// table background once by the session controller at launch). Object: the new
// value (QColor, QFont or bool); no userInfo. Objects of another type are ignored.
inline constexpr const char* TableBackgroundColorDidChange = "TableBackgroundColorDidChange";
inline constexpr const char* DictationTextColorDidChange = "DictationTextColorDidChange";
inline constexpr const char* DictationTextFontDidChange = "DictationTextFontDidChange";
inline constexpr const char* ShowLineNumbersDidChange = "ShowLineNumbersDidChange";
inline constexpr const char* ShowAudioWaveDidChange = "ShowAudioWaveDidChange";
inline constexpr const char* ShowStatusBarDidChange = "ShowStatusBarDidChange";

// One of the check's settings changed in the preferences panel (reset posts
// once for each). Object: the setting's key (QString, a PreferenceKeys name);
// no userInfo. Observers read storedCheckOptions() and storedCheckAsIType().
inline constexpr const char* CheckOptionsDidChange = "CheckOptionsDidChange";
// The practice loop's settings changed; the object names the key.
inline constexpr const char* PracticeOptionsDidChange = "PracticeOptionsDidChange";

} // namespace Notifications
