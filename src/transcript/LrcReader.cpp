// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/LrcReader.h"

#include "common/Log.h"

#include <QDebug>
#include <QRegularExpression>
#include <QStringDecoder>
#include <cmath>
#include <limits>

namespace Lrc {

std::optional<QString> decodeUtf8(const QByteArray& bytes)
{
    // The decoder drops a leading byte-order mark and flags every malformed
    // sequence. Stateless, so that a sequence cut off at the end of the file
    // is an error too rather than input held back for a next call.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

namespace {

bool isNewline(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

} // namespace

QStringList splitLines(const QString& text)
{
    QStringList lines;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isNewline(text[i])) {
            lines.append(text.mid(begin, i - begin));
            begin = i + 1;
        }
    }
    lines.append(text.mid(begin));
    return lines;
}

std::optional<StampMatch> matchStamp(const QString& line)
{
    // PCRE2 needs the Unicode-properties option for \d to mean any decimal
    // digit, as it does in ICU. The other differences between the engines
    // (what "." stops at) cannot show: a line holds no newline character.
    static const QRegularExpression pattern(
        QStringLiteral("\\[(\\d{2}):(\\d{2})\\.(\\d{1,6}?)\\](.*)"),
        QRegularExpression::UseUnicodePropertiesOption);

    const QRegularExpressionMatch m = pattern.match(line);
    if (!m.hasMatch() || m.lastCapturedIndex() != 4)
        return std::nullopt;
    return StampMatch{m.capturedStart(0), m.captured(1), m.captured(2), m.captured(3),
                      m.captured(4)};
}

qint64 leadingIntegerValue(QStringView digits)
{
    constexpr qint64 limit = std::numeric_limits<qint64>::max() / 10 - 9;
    qint64 value = 0;
    qsizetype i = 0;
    while (i < digits.size()) {
        char32_t code = digits[i].unicode();
        qsizetype width = 1;
        if (QChar::isHighSurrogate(code)) {
            // A pair cut in half (the fraction is cut after three UTF-16 units)
            // is not a digit: reading stops there.
            if (i + 1 >= digits.size() || !digits[i + 1].isLowSurrogate())
                break;
            code = QChar::surrogateToUcs4(digits[i], digits[i + 1]);
            width = 2;
        }
        if (QChar::category(code) != QChar::Number_DecimalDigit)
            break;
        if (value < limit)
            value = value * 10 + QChar::digitValue(code);
        i += width;
    }
    return value;
}

double stampSeconds(const StampMatch& match)
{
    const qint64 minutes = leadingIntegerValue(match.minutes);
    const qint64 seconds = leadingIntegerValue(match.seconds);
    const qint64 milliseconds = leadingIntegerValue(QStringView(match.fraction).left(3));
    return static_cast<double>(minutes * 60 + seconds) + static_cast<double>(milliseconds) / 1000.0;
}

QString trimSpacesAndTabs(QStringView text)
{
    const auto blank = [](QChar c) { return c == u'\t' || c.category() == QChar::Separator_Space; };
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && blank(text[begin]))
        ++begin;
    while (end > begin && blank(text[end - 1]))
        --end;
    return text.sliced(begin, end - begin).toString();
}

StampedLines readStampedLines(const QString& text)
{
    static const QLatin1String headerTags[] = {QLatin1String("[ti:"), QLatin1String("[ar:"),
                                               QLatin1String("[al:"), QLatin1String("[by:"),
                                               QLatin1String("[offset:")};
    StampedLines out;
    double lastStamp = 0.0;
    for (const QString& line : splitLines(text)) {
        if (line.isEmpty())
            continue;
        bool header = false;
        for (const QLatin1String& tag : headerTags)
            header = header || line.startsWith(tag);
        if (header)
            continue; // an offset is not applied either
        const std::optional<StampMatch> match = matchStamp(line);
        if (!match) {
            ++out.skipped;
            continue;
        }
        const double t = stampSeconds(*match);
        // Of two consecutive lines with the same stamp the first one wins.
        if (!out.stamps.isEmpty() && std::fabs(t - lastStamp) < 1e-6) {
            ++out.skipped;
            continue;
        }
        out.stamps.append(t);
        out.texts.append(trimSpacesAndTabs(match->rest));
        lastStamp = t;
        qCInfo(lcTranscript).noquote()
            << QString::asprintf("loadTranscriptionsFromFile:%lld,timestamp=%f,line=",
                                 static_cast<long long>(out.texts.size()), t) +
                   line;
    }
    return out;
}

SegmentList buildSegments(const QList<double>& stamps, double totalDuration,
                          QList<qsizetype>* sources)
{
    SegmentList segments;
    const qsizetype n = stamps.size();
    for (qsizetype i = 0; i < n; ++i) {
        const double start = stamps[i];
        if (start > totalDuration) {
            qCInfo(lcTranscript,
                   "loadTranscriptionsFromFile:非法的分段,分段开始时间大于音频总时间");
            break;
        }
        double duration = 0.0;
        if (i == n - 1) {
            // With no audio open the last line still gets a segment to play.
            duration = totalDuration > 0.0 ? totalDuration - start : 5.0;
        } else {
            duration = stamps[i + 1] - start;
        }
        // No segment for a stamp that is not followed by a later one; its text
        // stays, and the caller compares the counts.
        if (!(duration > 0.0))
            continue;
        qCInfo(lcTranscript, "%lld,start=%f,duration=%f", static_cast<long long>(i + 1), start,
               duration);
        segments.append(Segment{start, duration});
        if (sources)
            sources->append(i);
    }
    return segments;
}

QStringList foldTextsOntoSegments(const QList<double>& stamps, const QStringList& texts,
                                  const SegmentList& segments, const QList<qsizetype>& sources)
{
    QStringList rows(segments.size());
    if (segments.isEmpty())
        return rows;
    qsizetype own = 0; // the next segment whose stamp is still to come
    for (qsizetype i = 0; i < texts.size() && i < stamps.size(); ++i) {
        qsizetype row = 0;
        if (own < sources.size() && sources[own] == i) {
            row = own++;
        } else {
            for (qsizetype s = 0; s < segments.size(); ++s) {
                if (segments[s].start <= stamps[i])
                    row = s;
            }
        }
        if (texts[i].isEmpty())
            continue;
        rows[row] = rows[row].isEmpty() ? texts[i] : rows[row] + u' ' + texts[i];
    }
    return rows;
}

} // namespace Lrc
