// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/CustomTableHeaderView.h"

#include <QAbstractItemModel>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

CustomTableHeaderView::CustomTableHeaderView(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), m_titleColor(Qt::white)
{
    setSectionsClickable(false);
    setSectionsMovable(false);
    setHighlightSections(false);
    setFocusPolicy(Qt::NoFocus);
}

void CustomTableHeaderView::setTitleFont(const QFont& font)
{
    m_titleFont = font;
    viewport()->update();
}

void CustomTableHeaderView::setTitleBgColor(const QColor& color)
{
    m_titleBgColor = color;
    viewport()->update();
}

void CustomTableHeaderView::setTitleColor(const QColor& color)
{
    m_titleColor = color;
    viewport()->update();
}

void CustomTableHeaderView::setHeaderHeight(int height)
{
    m_height = height;
    setFixedHeight(height);
    updateGeometry();
}

QSize CustomTableHeaderView::sizeHint() const
{
    return {QHeaderView::sizeHint().width(), m_height};
}

void CustomTableHeaderView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), m_titleBgColor);
    if (!model())
        return;
    painter.setFont(m_titleFont);
    painter.setPen(m_titleColor);
    const QFontMetricsF metrics(m_titleFont);
    const qreal textHeight = metrics.height();
    const qreal y = (viewport()->height() - textHeight) * 0.5;
    qreal x = 0;
    for (int column = 0; column < count(); ++column) {
        const QString title = model()->headerData(column, orientation()).toString();
        const qreal width = std::ceil(metrics.horizontalAdvance(title));
        if (column == kLineNumberColumn) {
            if (isSectionHidden(column))
                continue;
            painter.drawText(QPointF(x, y + metrics.ascent()), title);
            x += width;
        } else {
            painter.drawText(QPointF(x, y + metrics.ascent()), title);
        }
    }
}
