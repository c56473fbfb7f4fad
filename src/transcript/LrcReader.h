// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/Segment.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <optional>

// Reading transcripts back: bytes to text, text to lines, lines to time
// stamps and texts, stamps to segments. The pieces are separate so that the
// command-line tool and the fuzz target can drive them without a file.
namespace Lrc {

// Decodes a transcript as UTF-8. A leading byte-order mark is dropped. Any
// malformed sequence (including encoded surrogates and overlong forms) makes
// the whole text unreadable: a file in another encoding is refused, not read
// as garbage that a later save would then make permanent.
std::optional<QString> decodeUtf8(const QByteArray& bytes);

// Splits at every newline character: LF, VT, FF, CR, NEL (U+0085), LINE
// SEPARATOR (U+2028) and PARAGRAPH SEPARATOR (U+2029). Each one ends a line,
// so CR LF leaves an empty line between; readers skip empty lines.
QStringList splitLines(const QString& text);

// The first "[mm:ss.f]text" stamp found anywhere in one line.
struct StampMatch
{
    qsizetype position = 0; // where the "[" is; what precedes it is dropped
    QString minutes;        // exactly two decimal digits
    QString seconds;        // exactly two decimal digits
    QString fraction;       // one to six decimal digits
    QString rest;           // everything after the "]"
};

// Finds the first match of \[(\d{2}):(\d{2})\.(\d{1,6}?)\](.*) in the line.
// \d is any Unicode decimal digit (general category Nd), as in the regular
// expressions of ICU, not only 0-9. The line must hold no newline character.
std::optional<StampMatch> matchStamp(const QString& line);

// The value of the decimal digits at the start of `digits` (any Nd digit
// counts by its digit value); reading stops at the first other character.
qint64 leadingIntegerValue(QStringView digits);

// The time a stamp stands for, in seconds. The fraction is always read as
// milliseconds from its first three digits: ".5" is 5 ms, ".50" 50 ms and
// ".123456" 123 ms. Files this program writes have three digits, where the
// reading is exact.
double stampSeconds(const StampMatch& match);

// Leading and trailing spaces (any Unicode space separator) and tabs removed.
QString trimSpacesAndTabs(QStringView text);

struct StampedLines
{
    QList<double> stamps;
    QStringList texts; // same length as stamps
    // Non-empty lines that were neither a header tag nor taken: no stamp, or
    // the same stamp as the line before.
    int skipped = 0;
};

// Reads every line of a transcript in order: empty lines and the header tags
// [ti: [ar: [al: [by: [offset: are skipped, lines without a stamp are skipped
// silently, and of two consecutive accepted lines with the same stamp (within
// 1e-6 s) the first wins. Logs each accepted line.
StampedLines readStampedLines(const QString& text);

// Cuts segments at the stamps, in file order (not sorted): each runs to the
// next stamp, the last one to the end of the audio, or 5 s when no audio is
// open (total 0). Stamps that would give no positive length get no segment,
// so the result can be shorter than the stamps. A stamp past the end of the
// audio stops the cutting there. Logs each segment and the early stop.
// `sources`, when given, receives for each segment the index of its stamp.
SegmentList buildSegments(const QList<double>& stamps, double totalDuration,
                          QList<qsizetype>* sources = nullptr);

// One text per segment: each segment's own text, with the texts whose stamps
// got no segment (running backwards, or past the end) joined with a space
// onto the last segment that starts at or before their time (the first
// segment when none does), in file order. Rows then match the segments one to one, and no
// typed word is left on a row that has no time of its own.
QStringList foldTextsOntoSegments(const QList<double>& stamps, const QStringList& texts,
                                  const SegmentList& segments, const QList<qsizetype>& sources);

} // namespace Lrc
