// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/RowMarkPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace RowMarkPainter {

TextPositions::TextPositions(const QString& text, const QFont& font) : m_layout(text, font)
{
    m_layout.beginLayout();
    m_line = m_layout.createLine();
    m_layout.endLayout();
}

qreal TextPositions::x(qsizetype position) const
{
    return m_line.isValid() ? m_line.cursorToX(int(position)) : 0.0;
}

// Strong enough to read on the dark default background and on the light
// field behind the text being typed.
QColor wrongColor()
{
    return QColor(235, 45, 45);
}

QColor typoColor()
{
    return QColor(255, 150, 0);
}

QColor missingColor()
{
    return QColor(160, 160, 160);
}

QColor verdictColor(RowVerdict verdict)
{
    switch (verdict) {
    case RowVerdict::Perfect:
        return QColor(40, 190, 80);
    case RowVerdict::TyposOnly:
        return typoColor();
    case RowVerdict::Mistakes:
        return wrongColor();
    case RowVerdict::Unchecked:
        break;
    }
    return {};
}

void paintMarks(QPainter& painter, const QFont& font, const QList<TextMark>& marks,
                const std::function<qreal(qsizetype)>& xAt, qreal baseline,
                qsizetype shownLength)
{
    if (marks.isEmpty())
        return;
    const QFontMetricsF metrics(font);
    const qreal thickness = std::max<qreal>(1.5, metrics.lineWidth() * 1.5);
    const qreal underline = baseline + std::max<qreal>(2, metrics.underlinePos()) + thickness / 2;
    const qreal strike = baseline - metrics.xHeight() / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (const TextMark& mark : marks) {
        const bool missing = mark.kind == TextMark::Kind::Missing;
        if (mark.start > shownLength || (!missing && mark.start >= shownLength))
            continue;
        const qreal left = xAt(mark.start);
        const qreal right = xAt(std::min(mark.start + mark.length, shownLength));
        switch (mark.kind) {
        case TextMark::Kind::Wrong:
        case TextMark::Kind::Typo:
            painter.setPen(QPen(mark.kind == TextMark::Kind::Wrong ? wrongColor() : typoColor(),
                                thickness, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(QPointF(left, underline), QPointF(right, underline));
            break;
        case TextMark::Kind::Extra:
            painter.setPen(QPen(wrongColor(), thickness, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(QPointF(left, strike), QPointF(right, strike));
            break;
        case TextMark::Kind::Missing: {
            // A caret under the middle of the gap, like the proof-reader's
            // mark for "insert".
            const qreal at = (left + right) / 2;
            const qreal half = std::max<qreal>(3, metrics.height() / 6);
            QPainterPath caret;
            caret.moveTo(at - half, underline + half);
            caret.lineTo(at, underline - half / 2);
            caret.lineTo(at + half, underline + half);
            painter.setPen(QPen(missingColor(), thickness, Qt::SolidLine, Qt::RoundCap,
                                Qt::RoundJoin));
            painter.drawPath(caret);
            break;
        }
        }
    }
    painter.restore();
}

void paintVerdict(QPainter& painter, RowVerdict verdict, const QRect& cell, const QFont& font)
{
    if (verdict == RowVerdict::Unchecked)
        return;
    const qreal size = std::max<qreal>(6, QFontMetricsF(font).height() / 4);
    const QRectF dot(cell.right() - size - 3, cell.top() + 3, size, size);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    // Shapes as well as colours, so that the three read apart without colour.
    const QColor color = verdictColor(verdict);
    if (verdict == RowVerdict::TyposOnly) {
        painter.setPen(QPen(color, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(dot.adjusted(1, 1, -1, -1));
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        if (verdict == RowVerdict::Perfect)
            painter.drawEllipse(dot);
        else
            painter.drawRect(dot);
    }
    painter.restore();
}

} // namespace RowMarkPainter
