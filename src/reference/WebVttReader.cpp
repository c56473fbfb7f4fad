// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/WebVttReader.h"

namespace {

// The keyword alone on the line or followed by a space or a tab.
bool startsWithWord(QStringView line, QStringView word)
{
    return line.startsWith(word) &&
           (line.size() == word.size() || line[word.size()] == u' ' || line[word.size()] == u'\t');
}

bool isCommentOrStyling(QStringView firstLine)
{
    return startsWithWord(firstLine, u"NOTE") || startsWithWord(firstLine, u"STYLE") ||
           startsWithWord(firstLine, u"REGION");
}

SubtitleSyntax::ParsedUnit readCue(const QList<QStringView>& lines, qsizetype first, qsizetype end)
{
    SubtitleSyntax::ParsedUnit cue;
    cue.line = first + 1;
    // The timing line is the first one, or the second after an identifier.
    qsizetype timingLine = first;
    std::optional<SubtitleSyntax::TimingLine> timing =
        SubtitleSyntax::splitTimingLine(lines[first]);
    if (!timing && first + 1 < end) {
        timingLine = first + 1;
        timing = SubtitleSyntax::splitTimingLine(lines[timingLine]);
    }
    if (!timing) {
        cue.problem = QStringLiteral("it is neither a cue nor a note");
        return cue;
    }
    const std::optional<double> start = SubtitleSyntax::parseWebVttTime(timing->start);
    const std::optional<double> stop = SubtitleSyntax::parseWebVttTime(timing->end);
    if (!start || !stop) {
        cue.problem = SubtitleSyntax::unreadableTimesReason(*timing);
        return cue;
    }
    cue.unit.start = start;
    cue.unit.end = stop;
    QString joined;
    for (qsizetype i = timingLine + 1; i < end; ++i) {
        if (!joined.isEmpty())
            joined.append(u' ');
        joined.append(lines[i]);
    }
    cue.unit.text = SubtitleSyntax::collapseSpaces(SubtitleSyntax::removeWebVttMarkup(joined));
    if (cue.unit.text.isEmpty())
        cue.problem = QStringLiteral("it has no text");
    return cue;
}

} // namespace

std::optional<SubtitleSyntax::ParsedUnits> WebVttReader::read(const QString& text)
{
    const QList<QStringView> lines = SubtitleSyntax::splitLines(text);
    if (lines.isEmpty() || !startsWithWord(lines.front(), u"WEBVTT"))
        return std::nullopt;

    const auto blank = [&lines](qsizetype i) {
        return SubtitleSyntax::trimmed(lines[i]).isEmpty();
    };
    SubtitleSyntax::ParsedUnits out;
    qsizetype i = 0;
    while (i < lines.size() && !blank(i)) // the header block
        ++i;
    while (i < lines.size()) {
        while (i < lines.size() && blank(i))
            ++i;
        if (i == lines.size())
            break;
        const qsizetype first = i;
        while (i < lines.size() && !blank(i))
            ++i;
        if (!isCommentOrStyling(lines[first]))
            out.append(readCue(lines, first, i));
    }
    return out;
}
