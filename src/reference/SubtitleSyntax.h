// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/ReferenceText.h"

#include <QList>
#include <QString>
#include <QStringView>
#include <optional>

// What the readers of reference files share. Everything here runs in time
// linear in its input, whatever the input: a reference may be one 16 MB line
// of angle brackets.
namespace SubtitleSyntax {

// A unit as a reader found it, with the line it starts on (from 1) for the
// log lines about it. A unit the reader could not make sense of (times that
// cannot be read, no text) says why, and is left out with the others that
// cannot be used, so that the log lists them all in file order.
struct ParsedUnit
{
    qsizetype line = 0;
    ReferenceUnit unit;
    QString problem; // null when the reader found nothing wrong
};
using ParsedUnits = QList<ParsedUnit>;

// Views of the lines of `text`, which must outlive them. Lines end at LF, CR
// LF or CR; a final line break adds no empty line.
QList<QStringView> splitLines(const QString& text);

// Leading and trailing spaces and tabs removed.
QStringView trimmed(QStringView line);

// "hh:mm:ss,mmm" as SubRip writes it: one or more digits of hours, two of
// minutes and seconds, "," or "." and one to three digits read as a decimal
// fraction. Seconds in a cue time.
std::optional<double> parseSubRipTime(QStringView stamp);
// "mm:ss.ttt" or "hh:mm:ss.ttt" as WebVTT writes it, exactly three digits
// after the ".".
std::optional<double> parseWebVttTime(QStringView stamp);

// The two sides of a timing line "start --> end [settings]", each trimmed,
// the end without what follows it; nothing when there is no "-->".
struct TimingLine
{
    QStringView start;
    QStringView end;
};
std::optional<TimingLine> splitTimingLine(QStringView line);
// Why the times of a timing line could not be read, for the log.
QString unreadableTimesReason(const TimingLine& timing);

// SubRip's markup removed: <i> <b> <u> <s> <font ...> and their closing tags
// (any case), and "{\...}" overrides such as {\an8}. Other text in angle
// brackets is left as it is, since SubRip has no escapes for "<".
QString removeSubRipMarkup(QStringView text);
// WebVTT's markup removed: every "<...>" tag (<v Name>, <c.loud>, <i>,
// timestamps), then the character references &amp; &lt; &gt; &nbsp; &lrm;
// &rlm; decoded.
QString removeWebVttMarkup(QStringView text);

// Runs of white space made one space, and none at either end.
QString collapseSpaces(QStringView text);

} // namespace SubtitleSyntax
