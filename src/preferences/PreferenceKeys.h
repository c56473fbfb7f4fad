#pragma once

// The keys of the per-user defaults store, declared once. The spelling after
// the "k" prefix varies between keys and is kept as stored by earlier versions.
namespace PreferenceKeys {

// Engine: segmentation and playback.
inline constexpr const char* MinSegmentDuration = "kminSegmentDuration"; // double s, floor 1.0
inline constexpr const char* PlaySpeed = "kPlaySpeed";                   // double, 0.3..3.0
inline constexpr const char* MaxRepeatPlayTimes = "kMaxRepeatPlayTimes"; // integer, 1..9999
inline constexpr const char* Sensitivity = "ksensitivity";               // integer as double
inline constexpr const char* MinGapDuration = "kminGapDuration";         // double s, floor 1.0

} // namespace PreferenceKeys

// The folder bookmark store of the open road; no defaults are registered.
namespace PreferenceKeys {
inline constexpr const char* LastDirectoryBookmark = "LastDirectoryBookmark"; // base64 text
inline constexpr const char* LastAudioFileName = "LastAudioFileName";         // file name
} // namespace PreferenceKeys
