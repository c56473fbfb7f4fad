#pragma once

#include <QBasicTimer>
#include <QColor>
#include <QLineEdit>

// The text field of a dictation row. It keeps the typing focus: Return, Tab,
// Shift-Tab and Escape do nothing in it, so the learner's caret never leaves
// the row by accident. While it has the focus its text is black and its caret
// `cursorColor`; otherwise the text is drawn in `textColor`.
class CustomTextField : public QLineEdit
{
    Q_OBJECT
public:
    // Distance from the cell's left edge to the first glyph; the painted rows
    // use it too, so text does not jump when a row gains its editor.
    static constexpr int kTextInset = 6;

    explicit CustomTextField(QWidget* parent = nullptr);

    QColor cursorColor() const { return m_cursorColor; }
    void setCursorColor(const QColor& color);
    QColor textColor() const { return m_textColor; }
    void setTextColor(const QColor& color);

    // True for the four keys the field swallows.
    static bool isKeptKey(int key);

signals:
    // The field took the focus: its row is now the one being edited.
    void editingBegan();

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void applyTextColor(const QColor& color);
    void restartBlink();

    QColor m_cursorColor;
    QColor m_textColor;
    QBasicTimer m_blink;
    bool m_caretShown = false;
};
