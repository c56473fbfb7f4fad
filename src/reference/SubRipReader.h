// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/SubtitleSyntax.h"

#include <QString>

// Reads the cues of a SubRip (.srt) file. A cue is a timing line
// "00:01:02,500 --> 00:01:04,000" (with "," or "." before the milliseconds,
// anything after the end time ignored) and the text lines up to the next
// blank line, joined with a space, markup removed. The number line before a
// timing line is not text, even when the blank line before it is missing.
class SubRipReader
{
public:
    // The cues in file order, untouched by the audio's length.
    static SubtitleSyntax::ParsedUnits read(const QString& text);
};
