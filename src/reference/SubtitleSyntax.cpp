// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/SubtitleSyntax.h"

#include <array>

namespace SubtitleSyntax {

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isAsciiLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

// The value of a field of exactly `width` digits (any width when 0, up to
// five), or -1.
int field(QStringView digits, qsizetype width)
{
    if (digits.isEmpty() || (width > 0 && digits.size() != width) || digits.size() > 5)
        return -1;
    int value = 0;
    for (const QChar c : digits) {
        if (!isAsciiDigit(c))
            return -1;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

// hours (optional when `hoursOptional`), minutes, seconds, then one of the
// `separators` and the fraction's digits, between `minFraction` and
// `maxFraction` of them.
std::optional<double> parseTime(QStringView stamp, bool hoursOptional, QStringView separators,
                                qsizetype minFraction, qsizetype maxFraction)
{
    if (stamp.size() > 32)
        return std::nullopt;
    qsizetype mark = -1;
    for (qsizetype i = 0; i < stamp.size(); ++i) {
        if (separators.contains(stamp[i]))
            mark = i;
    }
    if (mark < 0)
        return std::nullopt;
    const QStringView fraction = stamp.sliced(mark + 1);
    if (fraction.size() < minFraction || fraction.size() > maxFraction)
        return std::nullopt;
    const int fractionValue = field(fraction, 0);

    const QList<QStringView> parts = stamp.first(mark).split(u':');
    if (parts.size() != 3 && !(hoursOptional && parts.size() == 2))
        return std::nullopt;
    const int hours = parts.size() == 3 ? field(parts[0], 0) : 0;
    const int minutes = field(parts[parts.size() - 2], 2);
    const int seconds = field(parts[parts.size() - 1], 2);
    if (hours < 0 || minutes < 0 || minutes > 59 || seconds < 0 || seconds > 59 ||
        fractionValue < 0)
        return std::nullopt;
    // Whole milliseconds divided once, so that "01:02:03.004" is the double
    // nearest 3723.004, as the same time written in a file of ours would be.
    qint64 milliseconds = fractionValue;
    for (qsizetype i = fraction.size(); i < 3; ++i)
        milliseconds *= 10;
    milliseconds += (hours * 3600LL + minutes * 60LL + seconds) * 1000LL;
    return static_cast<double>(milliseconds) / 1000.0;
}

// The first '>' at or after `from` that comes before any '<', or -1. Scans
// stop at a '<', so that no character is scanned from two '<'s.
qsizetype closingBracket(QStringView text, qsizetype from, QChar open, QChar close)
{
    for (qsizetype i = from; i < text.size(); ++i) {
        if (text[i] == close)
            return i;
        if (text[i] == open)
            return -1;
    }
    return -1;
}

bool isSubRipTag(QStringView name)
{
    static const std::array<QStringView, 5> tags = {u"i", u"b", u"u", u"s", u"font"};
    for (const QStringView tag : tags) {
        if (name.compare(tag, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

QList<QStringView> splitLines(const QString& text)
{
    QList<QStringView> lines;
    const QStringView all(text);
    qsizetype begin = 0;
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (all[i] != u'\n' && all[i] != u'\r')
            continue;
        lines.append(all.sliced(begin, i - begin));
        if (all[i] == u'\r' && i + 1 < all.size() && all[i + 1] == u'\n')
            ++i;
        begin = i + 1;
    }
    if (begin < all.size())
        lines.append(all.sliced(begin));
    return lines;
}

QStringView trimmed(QStringView line)
{
    qsizetype begin = 0;
    qsizetype end = line.size();
    while (begin < end && isBlank(line[begin]))
        ++begin;
    while (end > begin && isBlank(line[end - 1]))
        --end;
    return line.sliced(begin, end - begin);
}

std::optional<double> parseSubRipTime(QStringView stamp)
{
    return parseTime(stamp, false, u",.", 1, 3);
}

std::optional<double> parseWebVttTime(QStringView stamp)
{
    return parseTime(stamp, true, u".", 3, 3);
}

std::optional<TimingLine> splitTimingLine(QStringView line)
{
    const qsizetype arrow = line.indexOf(u"-->");
    if (arrow < 0)
        return std::nullopt;
    const QStringView after = trimmed(line.sliced(arrow + 3));
    qsizetype endOfStamp = 0;
    while (endOfStamp < after.size() && !isBlank(after[endOfStamp]))
        ++endOfStamp;
    return TimingLine{trimmed(line.first(arrow)), after.first(endOfStamp)};
}

QString unreadableTimesReason(const TimingLine& timing)
{
    if (timing.start.startsWith(u'-') || timing.end.startsWith(u'-'))
        return QStringLiteral("it has a negative time");
    return QStringLiteral("its times cannot be read");
}

QString removeSubRipMarkup(QStringView text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'<') {
            qsizetype nameStart = i + 1;
            if (nameStart < text.size() && text[nameStart] == u'/')
                ++nameStart;
            qsizetype nameEnd = nameStart;
            while (nameEnd < text.size() && nameEnd - nameStart < 5 && isAsciiLetter(text[nameEnd]))
                ++nameEnd;
            if (nameEnd < text.size() && (text[nameEnd] == u'>' || isBlank(text[nameEnd])) &&
                isSubRipTag(text.sliced(nameStart, nameEnd - nameStart))) {
                const qsizetype close = closingBracket(text, nameEnd, u'<', u'>');
                if (close >= 0) {
                    i = close;
                    continue;
                }
            }
        } else if (c == u'{' && i + 1 < text.size() && text[i + 1] == u'\\') {
            const qsizetype close = closingBracket(text, i + 2, u'{', u'}');
            if (close >= 0) {
                i = close;
                continue;
            }
        }
        out.append(c);
    }
    return out;
}

QString removeWebVttMarkup(QStringView text)
{
    struct Reference
    {
        QStringView name;
        QStringView replacement;
    };
    static const std::array<Reference, 6> references = {{{u"&amp;", u"&"},
                                                         {u"&lt;", u"<"},
                                                         {u"&gt;", u">"},
                                                         {u"&nbsp;", u"\u00a0"},
                                                         {u"&lrm;", u""},
                                                         {u"&rlm;", u""}}};
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'<') {
            const qsizetype close = closingBracket(text, i + 1, u'<', u'>');
            if (close >= 0) {
                i = close;
                continue;
            }
        } else if (c == u'&') {
            const QStringView rest = text.sliced(i);
            bool decoded = false;
            for (const Reference& reference : references) {
                if (rest.startsWith(reference.name)) {
                    out.append(reference.replacement);
                    i += reference.name.size() - 1;
                    decoded = true;
                    break;
                }
            }
            if (decoded)
                continue;
        }
        out.append(c);
    }
    return out;
}

QString collapseSpaces(QStringView text)
{
    QString out;
    out.reserve(text.size());
    bool space = false;
    for (const QChar c : text) {
        if (c.isSpace()) {
            space = !out.isEmpty();
            continue;
        }
        if (space)
            out.append(u' ');
        space = false;
        out.append(c);
    }
    return out;
}

} // namespace SubtitleSyntax
