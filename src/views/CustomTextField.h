// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/RowMarks.h"

#include <QBasicTimer>
#include <QColor>
#include <QLineEdit>

// The text field of a dictation row. It keeps the typing focus: Return, Tab,
// Shift-Tab and Escape do nothing in it, so the learner's caret never leaves
// the row by accident. While it has the focus it draws a light field behind
// its text, the text black and its caret `cursorColor`; otherwise the text is
// drawn in `textColor` straight on the table.
class CustomTextField : public QLineEdit
{
    Q_OBJECT
public:
    // Distance from the cell's left edge to the first glyph.
    static constexpr int kTextInset = 10;

    // Where a row's text sits in a cell: the left edge and baseline of its
    // first glyph. The painted rows draw there and the field lays its text
    // out to the same point, so a row's text does not move by a pixel when
    // it gains or loses its field, whatever the font.
    static QPointF textOrigin(const QRect& cell, const QFont& font);
    // The top of the text line in a cell (the line is the font's height).
    static int lineTop(const QRect& cell, const QFont& font);
    // The light field behind the text being typed in a cell, and its colour:
    // the palette's Base when black reads on it at 10:1 or better, else white.
    static QRect fieldRect(const QRect& cell);
    static QColor fieldColor();

    explicit CustomTextField(QWidget* parent = nullptr);

    QColor cursorColor() const { return m_cursorColor; }
    void setCursorColor(const QColor& color);
    QColor textColor() const { return m_textColor; }
    void setTextColor(const QColor& color);

    // A check's marks on the text, drawn as the painted rows draw them.
    void setMarks(const QList<TextMark>& marks);
    const QList<TextMark>& marks() const { return m_marks; }

    // True for the four keys the field swallows.
    static bool isKeptKey(int key);

signals:
    // The field took the focus: its row is now the one being edited.
    void editingBegan();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void applyTextColor(const QColor& color);
    void placeText();
    void restartBlink();

    QColor m_cursorColor;
    QColor m_textColor;
    QBasicTimer m_blink;
    bool m_caretShown = false;
    QList<TextMark> m_marks;
};
