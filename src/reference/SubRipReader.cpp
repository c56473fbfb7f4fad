// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/SubRipReader.h"

namespace {

bool isCueNumber(QStringView line)
{
    if (line.isEmpty())
        return false;
    for (const QChar c : line) {
        if (c < u'0' || c > u'9')
            return false;
    }
    return true;
}

struct OpenCue
{
    SubtitleSyntax::ParsedUnit unit;
    QList<QStringView> lines;
    bool collecting = true; // until the blank line after the text
};

void finish(OpenCue& cue, bool nextCueFollows, SubtitleSyntax::ParsedUnits& out)
{
    // A number right before the next timing line is that cue's number.
    if (nextCueFollows && cue.collecting && !cue.lines.isEmpty() && isCueNumber(cue.lines.back()))
        cue.lines.removeLast();
    QString joined;
    for (const QStringView line : cue.lines) {
        if (!joined.isEmpty())
            joined.append(u' ');
        joined.append(line);
    }
    cue.unit.unit.text = SubtitleSyntax::collapseSpaces(SubtitleSyntax::removeSubRipMarkup(joined));
    if (cue.unit.problem.isNull() && cue.unit.unit.text.isEmpty())
        cue.unit.problem = QStringLiteral("it has no text");
    out.append(std::move(cue.unit));
}

} // namespace

SubtitleSyntax::ParsedUnits SubRipReader::read(const QString& text)
{
    SubtitleSyntax::ParsedUnits out;
    std::optional<OpenCue> cue;
    const QList<QStringView> lines = SubtitleSyntax::splitLines(text);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringView line = SubtitleSyntax::trimmed(lines[i]);
        if (const std::optional<SubtitleSyntax::TimingLine> timing =
                SubtitleSyntax::splitTimingLine(line)) {
            if (cue)
                finish(*cue, true, out);
            cue.emplace();
            cue->unit.line = i + 1;
            const std::optional<double> start = SubtitleSyntax::parseSubRipTime(timing->start);
            const std::optional<double> end = SubtitleSyntax::parseSubRipTime(timing->end);
            if (start && end) {
                cue->unit.unit.start = start;
                cue->unit.unit.end = end;
            } else {
                cue->unit.problem = SubtitleSyntax::unreadableTimesReason(*timing);
            }
        } else if (line.isEmpty()) {
            if (cue)
                cue->collecting = false;
        } else if (cue && cue->collecting) {
            cue->lines.append(line);
        }
    }
    if (cue)
        finish(*cue, false, out);
    return out;
}
