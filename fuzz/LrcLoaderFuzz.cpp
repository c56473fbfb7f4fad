// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds arbitrary bytes to the transcript reader, as if they were a .lrc file
// the user imported, and checks what it builds:
// - the regular expression finds the same stamp as a plain hand-written
//   matcher with ICU's meaning of \d (any Unicode decimal digit), so the
//   PCRE2 engine behind QRegularExpression agrees with the reading we promise;
// - stamps, texts and segments keep their invariants for several audio lengths;
// - a line written back for a stamp reads back within the lost millisecond.

#include "transcript/LrcLine.h"
#include "transcript/LrcReader.h"

#include <QChar>
#include <QString>
#include <QStringList>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

void quiet(QtMsgType, const QMessageLogContext&, const QString&) {}

[[noreturn]] void fail(const char* what, const QString& line)
{
    std::fprintf(stderr, "lrc_loader_fuzz: %s\nline: %s\n", what, qPrintable(line.left(200)));
    std::abort();
}

// One decimal digit (a whole code point) at `i`; its width in UTF-16 units, or 0.
int digitAt(const QString& s, qsizetype i)
{
    if (i >= s.size())
        return 0;
    if (s[i].isHighSurrogate() && i + 1 < s.size() && s[i + 1].isLowSurrogate()) {
        const char32_t c = QChar::surrogateToUcs4(s[i], s[i + 1]);
        return QChar::category(c) == QChar::Number_DecimalDigit ? 2 : 0;
    }
    return s[i].category() == QChar::Number_DecimalDigit ? 1 : 0;
}

// \[(\d{2}):(\d{2})\.(\d{1,6}?)\](.*) searched from the left, by hand.
std::optional<Lrc::StampMatch> referenceMatch(const QString& s)
{
    for (qsizetype start = 0; start < s.size(); ++start) {
        if (s[start] != u'[')
            continue;
        qsizetype i = start + 1;
        QString groups[3];
        bool ok = true;
        for (int g = 0; g < 2 && ok; ++g) {
            for (int k = 0; k < 2 && ok; ++k) {
                const int w = digitAt(s, i);
                ok = w > 0;
                groups[g] += s.mid(i, w);
                i += w;
            }
            const char16_t separator = g == 0 ? u':' : u'.';
            ok = ok && i < s.size() && s[i] == separator;
            ++i;
        }
        if (!ok)
            continue;
        int digits = 0;
        while (digits < 6) {
            const int w = digitAt(s, i);
            if (w == 0)
                break;
            groups[2] += s.mid(i, w);
            i += w;
            ++digits;
        }
        if (digits == 0 || i >= s.size() || s[i] != u']')
            continue;
        return Lrc::StampMatch{start, groups[0], groups[1], groups[2], s.mid(i + 1)};
    }
    return std::nullopt;
}

void checkLine(const QString& line)
{
    for (const QChar c : line) {
        const char16_t u = c.unicode();
        if ((u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029)
            fail("a newline character survived the split", line);
    }
    const std::optional<Lrc::StampMatch> got = Lrc::matchStamp(line);
    const std::optional<Lrc::StampMatch> want = referenceMatch(line);
    if (got.has_value() != want.has_value())
        fail(got ? "regex matched, reference did not" : "reference matched, regex did not", line);
    if (!got)
        return;
    if (got->position != want->position || got->minutes != want->minutes ||
        got->seconds != want->seconds || got->fraction != want->fraction || got->rest != want->rest)
        fail("regex and reference disagree", line);

    const double t = Lrc::stampSeconds(*got);
    if (!(t >= 0.0 && t <= 99 * 60 + 99 + 0.999))
        fail("stamp out of range", line);
    // Written back and read again, at most the one truncated millisecond goes.
    const QString written = Lrc::formatLine(t, QStringLiteral("x"));
    const std::optional<Lrc::StampMatch> again = Lrc::matchStamp(written);
    if (t < 6000.0) {
        if (!again)
            fail("a written line does not read back", written);
        const double back = Lrc::stampSeconds(*again);
        if (!(back <= t + 1e-9 && back >= t - 0.001 - 1e-9))
            fail("a written line reads back at another time", written);
    }
}

void checkSegments(const Lrc::StampedLines& lines, double total)
{
    const SegmentList segments = Lrc::buildSegments(lines.stamps, total);
    if (segments.size() > lines.stamps.size())
        fail("more segments than stamps", QString::number(total));
    for (const Segment& s : segments) {
        if (!(s.duration > 0.0) || s.start > total)
            fail("a segment of no length or past the end", QString::number(s.start));
    }
    // A single stamp within the audio runs to its end, or 5 s with no audio.
    if (lines.stamps.size() == 1 && lines.stamps[0] <= total) {
        const double start = lines.stamps[0];
        const double expected = total > 0.0 ? total - start : 5.0;
        const SegmentList want =
            expected > 0.0 ? SegmentList{Segment{start, expected}} : SegmentList{};
        if (segments != want)
            fail("a single stamp gives the wrong segment", QString::number(start));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool silenced = (qInstallMessageHandler(quiet), true);
    (void)silenced;

    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<QString> text = Lrc::decodeUtf8(bytes);
    if (!text)
        return 0;
    for (const QString& line : Lrc::splitLines(*text))
        checkLine(line);

    const Lrc::StampedLines lines = Lrc::readStampedLines(*text);
    if (lines.stamps.size() != lines.texts.size())
        fail("stamps and texts differ in number", *text);
    for (qsizetype i = 1; i < lines.stamps.size(); ++i) {
        if (std::fabs(lines.stamps[i] - lines.stamps[i - 1]) < 1e-6)
            fail("two consecutive equal stamps were kept", lines.texts[i]);
    }
    for (const QString& t : lines.texts) {
        if (!t.isEmpty() && (t.front() == u'\t' || t.front().category() == QChar::Separator_Space ||
                             t.back() == u'\t' || t.back().category() == QChar::Separator_Space))
            fail("a text keeps surrounding blanks", t);
    }
    for (const double total : {0.0, 0.5, 60.0, 6100.0})
        checkSegments(lines, total);
    return 0;
}
