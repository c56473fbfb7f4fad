// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/SubtitleSyntax.h"

#include <QString>

// Reads a transcript (.lrc) with text as a reference, through the store's own
// transcript reader, so that a line counts here exactly when it would count
// as a segment's text. A line runs to the next line's stamp; the last one to
// the end of the audio (5 s when its length is unknown, as for segments).
// Lines without text are no units; their stamps still end the line before.
class LrcReferenceReader
{
public:
    // The lines in file order; ParsedUnit::line is the number of the stamped
    // line, counted from 1.
    static SubtitleSyntax::ParsedUnits read(const QString& text, double duration);
};
