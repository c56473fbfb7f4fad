// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/TextNormalizer.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace {

// After NFKC, which already turns full-width and compatibility forms into
// plain ones. Every replacement is one UTF-16 unit for one, so positions
// do not move.
char16_t plainForm(char16_t c)
{
    switch (c) {
    case 0x2018: // ‘ ’ ‚ ‛
    case 0x2019:
    case 0x201A:
    case 0x201B:
    case 0x02BC: // modifier letter apostrophe, what some keyboards type
    case 0x2039: // ‹ ›
    case 0x203A:
        return u'\'';
    case 0x201C: // “ ” „ ‟
    case 0x201D:
    case 0x201E:
    case 0x201F:
    case 0x00AB: // « »
    case 0x00BB:
        return u'"';
    case 0x2010: // hyphen, non-breaking hyphen, figure, en, em dash, bar
    case 0x2011:
    case 0x2012:
    case 0x2013:
    case 0x2014:
    case 0x2015:
    case 0x2212: // minus sign
    case 0x2E3A: // two- and three-em dash
    case 0x2E3B:
        return u'-';
    case 0x00A0: // no-break, figure and narrow no-break spaces
    case 0x2007:
    case 0x202F:
        return u' ';
    default:
        return c;
    }
}

void replaceTypographic(QString& text)
{
    for (QChar& c : text) {
        const char16_t plain = plainForm(c.unicode());
        if (plain != c.unicode())
            c = QChar(plain);
    }
}

} // namespace

QString TextNormalizer::normalized(const QString& source)
{
    QString text = source.normalized(QString::NormalizationForm_KC);
    replaceTypographic(text);
    return text;
}

TextNormalizer::TextNormalizer(const QString& source)
    : m_text(source.normalized(QString::NormalizationForm_KC)), m_sourceSize(source.size())
{
    if (m_text != source) {
        // Normalise one grapheme cluster at a time: composition never crosses
        // a cluster, and each piece remembers where it came from.
        m_text.clear();
        QTextBoundaryFinder clusters(QTextBoundaryFinder::Grapheme, source);
        qsizetype start = 0;
        bool moved = false;
        for (qsizetype end = clusters.toNextBoundary(); end > 0; end = clusters.toNextBoundary()) {
            m_pieces.append({m_text.size(), start});
            m_text += source.mid(start, end - start).normalized(QString::NormalizationForm_KC);
            moved = moved || m_text.size() != end;
            start = end;
        }
        if (!moved)
            m_pieces.clear();
    }
    replaceTypographic(m_text);
}

std::pair<qsizetype, qsizetype> TextNormalizer::sourceRange(qsizetype from, qsizetype to) const
{
    if (m_pieces.isEmpty())
        return {from, to};
    // The piece holding a unit: the last one that starts at or before it.
    const auto pieceOf = [this](qsizetype unit) {
        return std::upper_bound(m_pieces.cbegin(), m_pieces.cend(), unit,
                                [](qsizetype u, const Piece& p) { return u < p.textStart; }) -
               1;
    };
    const auto first = pieceOf(from);
    const auto last = pieceOf(std::max(from, to - 1)) + 1;
    return {first->sourceStart, last == m_pieces.cend() ? m_sourceSize : last->sourceStart};
}
