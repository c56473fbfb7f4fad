// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/ColorWell.h"

#include "common/Utility.h"

#include <QColorDialog>
#include <QPainter>

ColorWell::ColorWell(QWidget* parent) : QPushButton(parent)
{
    setMinimumSize(56, 28);
    connect(this, &QPushButton::clicked, this, &ColorWell::activate);
}

void ColorWell::setColor(const QColor& color)
{
    m_color = color;
    // Screen readers hear the colour, since they cannot see the swatch.
    setAccessibleDescription(Utility::hexStringFromColor(color).value_or(QString()));
    update();
}

void ColorWell::activate()
{
    auto* dialog = new QColorDialog(m_color, window());
    dialog->setObjectName(QStringLiteral("colorDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& chosen) {
        if (!chosen.isValid())
            return;
        setColor(chosen);
        emit colorChanged(chosen);
    });
    dialog->open();
}

void ColorWell::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRect swatch = rect().adjusted(6, 6, -6, -6);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(m_color);
    painter.drawRect(swatch.adjusted(0, 0, -1, -1));
}
