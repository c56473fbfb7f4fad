// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/RowMarks.h"

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QTextLayout>
#include <functional>

class QPainter;

// Draws a check's marks on a line of text, for the painted rows and the live
// editor alike, so that a row looks the same with or without its editor.
namespace RowMarkPainter {

// The x of each position of a line of text, from its start: laid out once,
// so that the marks of a long row cost one shaping, not one per mark.
class TextPositions
{
public:
    TextPositions(const QString& text, const QFont& font);
    qreal x(qsizetype position) const;

private:
    QTextLayout m_layout;
    QTextLine m_line;
};

QColor wrongColor();
QColor typoColor();
QColor missingColor();
QColor verdictColor(RowVerdict verdict);

// `xAt(position)` is the x of the text's position `position` (UTF-16 units);
// `baseline` the text's baseline. Marks at or past `shownLength` are not drawn
// (the text was cut short there).
void paintMarks(QPainter& painter, const QFont& font, const QList<TextMark>& marks,
                const std::function<qreal(qsizetype)>& xAt, qreal baseline,
                qsizetype shownLength);

// The mark of a checked row (a dot when perfect, a ring for typos only, a
// square for mistakes), in the top right corner of `cell`.
void paintVerdict(QPainter& painter, RowVerdict verdict, const QRect& cell, const QFont& font);

} // namespace RowMarkPainter
