// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPushButton>

// A button showing a colour; a click opens the colour dialog on it, and a
// colour chosen there (not a cancelled one) becomes the well's colour.
class ColorWell : public QPushButton
{
    Q_OBJECT
public:
    explicit ColorWell(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    // Shows the colour without telling anyone.
    void setColor(const QColor& color);

    // Opens the dialog, window-modal; a test can reach it through its name
    // "colorDialog" among the well's window's children.
    void activate();

signals:
    // The user chose a colour.
    void colorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};
