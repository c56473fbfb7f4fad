// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <array>

// Placing the sentences of a plain reference text on the recording. %@ in
// AlignPrompt is the text's file name; the %d in AlignedStatus are the number
// of sentences and how many of them start uncertain; %@ in CannotAlignMessage
// is the aligner's own reason.
namespace Texts {

inline constexpr const char* MenuAlignAgain = QT_TRANSLATE_NOOP("Localizable", "&Align Again…");
inline constexpr const char* AlignTitle = QT_TRANSLATE_NOOP("Localizable", "Align Reference Text");
inline constexpr const char* AlignPrompt = QT_TRANSLATE_NOOP(
    "Localizable",
    "Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?");
inline constexpr const char* AlignLanguage = QT_TRANSLATE_NOOP("Localizable", "&Language:");
inline constexpr const char* AlignButton = QT_TRANSLATE_NOOP("Localizable", "Align");
inline constexpr const char* DontAlignButton = QT_TRANSLATE_NOOP("Localizable", "Don’t Align");
inline constexpr const char* Aligning =
    QT_TRANSLATE_NOOP("Localizable", "Placing the sentences on the recording…");
inline constexpr const char* AlignedStatus =
    QT_TRANSLATE_NOOP("Localizable", "Aligned %d sentences, %d uncertain");
inline constexpr const char* CannotAlign =
    QT_TRANSLATE_NOOP("Localizable", "The reference text could not be aligned");
inline constexpr const char* CannotAlignMessage =
    QT_TRANSLATE_NOOP("Localizable", "%@ The reference text stays as it was.");

inline constexpr std::array Alignment = {
    MenuAlignAgain,  AlignTitle, AlignPrompt,   AlignLanguage, AlignButton,
    DontAlignButton, Aligning,   AlignedStatus, CannotAlign,   CannotAlignMessage};

} // namespace Texts
