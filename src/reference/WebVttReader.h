// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/SubtitleSyntax.h"

#include <QString>
#include <optional>

// Reads the cues of a WebVTT (.vtt) file: the "WEBVTT" header block is
// skipped, and so are NOTE, STYLE and REGION blocks. A cue block is an
// optional identifier line, a timing line ("mm:ss.ttt" or "hh:mm:ss.ttt",
// cue settings after the end time ignored) and text lines, joined with a
// space, tags and character references removed.
class WebVttReader
{
public:
    // The cues in file order; nothing when the file does not start with the
    // WEBVTT header.
    static std::optional<SubtitleSyntax::ParsedUnits> read(const QString& text);
};
