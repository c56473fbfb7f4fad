// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <array>

// The practice loop's settings and commands.
namespace Texts {

inline constexpr const char* PrefPractice = QT_TRANSLATE_NOOP("Localizable", "Practice");
inline constexpr const char* PrefRepeatGap =
    QT_TRANSLATE_NOOP("Localizable", "Pause after each repetition:");
inline constexpr const char* PrefSlowerFirst =
    QT_TRANSLATE_NOOP("Localizable", "Play the first repetition slower");
inline constexpr const char* PrefRewindOnResume =
    QT_TRANSLATE_NOOP("Localizable", "Step back when playing resumes:");
inline constexpr const char* PrefHoldToPlay =
    QT_TRANSLATE_NOOP("Localizable", "Play only while the play key is held");
inline constexpr const char* PrefHardThreshold =
    QT_TRANSLATE_NOOP("Localizable", "A sentence is hard below:");
inline constexpr const char* SecondsUnit = QT_TRANSLATE_NOOP("Localizable", "s");
inline constexpr const char* RepeatUntilMovedOn =
    QT_TRANSLATE_NOOP("Localizable", "Until I move on");

inline constexpr std::array PracticeSettings = {
    PrefPractice,   PrefRepeatGap,     PrefSlowerFirst, PrefRewindOnResume,
    PrefHoldToPlay, PrefHardThreshold, SecondsUnit,     RepeatUntilMovedOn};

} // namespace Texts
