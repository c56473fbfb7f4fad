// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QHeaderView>

// The dictation table's header: a coloured band with the column titles packed
// side by side from the left edge ("Segment" then "|Dictation"), not placed
// over their columns. The "|" that starts the second title is the separator.
class CustomTableHeaderView : public QHeaderView
{
    Q_OBJECT
public:
    // The column whose title is skipped while the column is hidden.
    static constexpr int kLineNumberColumn = 0;

    explicit CustomTableHeaderView(QWidget* parent = nullptr);

    QFont titleFont() const { return m_titleFont; }
    void setTitleFont(const QFont& font);
    QColor titleBgColor() const { return m_titleBgColor; }
    void setTitleBgColor(const QColor& color);
    QColor titleColor() const { return m_titleColor; }
    void setTitleColor(const QColor& color);

    // The band's height; the table asks for it through sizeHint().
    void setHeaderHeight(int height);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont m_titleFont;
    QColor m_titleBgColor;
    QColor m_titleColor;
    int m_height = 0;
};
