// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <array>

// Cutting a lesson at the sentences of its timed reference text. %d in
// SegmentsNow is the number of segments after the cut; %@ in UncertainStarts
// the numbers of the segments whose start is uncertain, for a screen reader.
namespace Texts {

inline constexpr const char* MenuCutAtSentences =
    QT_TRANSLATE_NOOP("Localizable", "Cut Segments at &Sentences");
inline constexpr const char* EditCutAtSentences =
    QT_TRANSLATE_NOOP("Localizable", "Cut at Sentences");
inline constexpr const char* SegmentsNow = QT_TRANSLATE_NOOP("Localizable", "Segments now: %d");
inline constexpr const char* UncertainStarts =
    QT_TRANSLATE_NOOP("Localizable", "Uncertain segment starts: %@");

inline constexpr std::array SentenceCutting = {MenuCutAtSentences, EditCutAtSentences, SegmentsNow,
                                               UncertainStarts};

} // namespace Texts
