// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/LrcReferenceReader.h"

#include "transcript/LrcReader.h"

#include <algorithm>

SubtitleSyntax::ParsedUnits LrcReferenceReader::read(const QString& text, double duration)
{
    const Lrc::StampedLines lines = Lrc::readStampedLines(text);
    SubtitleSyntax::ParsedUnits out;
    for (qsizetype i = 0; i < lines.stamps.size(); ++i) {
        const double start = lines.stamps[i];
        double end = start + 5.0;
        if (i + 1 < lines.stamps.size())
            end = lines.stamps[i + 1];
        else if (duration > 0.0)
            end = std::max(duration, start);
        QString unitText = SubtitleSyntax::collapseSpaces(lines.texts[i]);
        if (unitText.isEmpty())
            continue;
        out.append(
            SubtitleSyntax::ParsedUnit{i + 1, ReferenceUnit{std::move(unitText), start, end}, {}});
    }
    return out;
}
