#include "views/CustomTextField.h"

#include "views/NamedColors.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <algorithm>

namespace {

// QLineEdit draws its caret in the text colour. This style hides that caret so
// the field can draw its own in `cursorColor`.
class HiddenCaretStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        if (metric == PM_TextCursorWidth)
            return 0;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
};

constexpr int kCaretWidth = 2;

} // namespace

CustomTextField::CustomTextField(QWidget* parent)
    : QLineEdit(parent), m_cursorColor(NamedColors::systemBlue()), m_textColor(Qt::black)
{
    auto* style = new HiddenCaretStyle;
    style->setParent(this);
    setStyle(style);
    setFrame(false);
    setAutoFillBackground(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // QLineEdit keeps 2 px of its own before the text.
    setTextMargins(kTextInset - 2, 0, 0, 0);
    QPalette pal = palette();
    pal.setColor(QPalette::Base, Qt::transparent);
    pal.setColor(QPalette::Highlight, QApplication::palette().color(QPalette::Highlight));
    pal.setColor(QPalette::HighlightedText,
                 QApplication::palette().color(QPalette::HighlightedText));
    setPalette(pal);
    applyTextColor(m_textColor);
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { restartBlink(); });
}

void CustomTextField::setCursorColor(const QColor& color)
{
    m_cursorColor = color;
    update();
}

void CustomTextField::setTextColor(const QColor& color)
{
    m_textColor = color;
    if (!hasFocus())
        applyTextColor(color);
}

bool CustomTextField::isKeptKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab ||
           key == Qt::Key_Backtab || key == Qt::Key_Escape;
}

bool CustomTextField::event(QEvent* event)
{
    // Swallowed before QWidget can turn Tab into a focus move or QLineEdit can
    // pass Return and Escape on to the table and the window.
    if (event->type() == QEvent::KeyPress && isKeptKey(static_cast<QKeyEvent*>(event)->key())) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void CustomTextField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    applyTextColor(Qt::black);
    // Back from another window or a menu the caret stays where it was, and a
    // click puts it where it lands; any other road into the row (the keyboard,
    // the table moving the row's field here) types after what is there, with
    // nothing selected.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
        reason != Qt::MouseFocusReason) {
        deselect();
        end(false);
    }
    restartBlink();
    emit editingBegan();
}

void CustomTextField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    m_blink.stop();
    m_caretShown = false;
    applyTextColor(m_textColor);
}

void CustomTextField::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!m_caretShown || !hasFocus() || hasSelectedText())
        return;
    const QRect around = cursorRect();
    const QFontMetrics fm(font());
    const int height = std::min(fm.height(), contentsRect().height());
    const int top = contentsRect().top() + (contentsRect().height() - height + 1) / 2;
    QPainter painter(this);
    painter.fillRect(QRect(around.center().x() - kCaretWidth / 2 + 1, top, kCaretWidth, height),
                     m_cursorColor);
}

void CustomTextField::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_blink.timerId()) {
        QLineEdit::timerEvent(event);
        return;
    }
    m_caretShown = !m_caretShown;
    update(cursorRect());
}

void CustomTextField::applyTextColor(const QColor& color)
{
    QPalette pal = palette();
    if (pal.color(QPalette::Text) == color)
        return;
    pal.setColor(QPalette::Text, color);
    setPalette(pal);
}

void CustomTextField::restartBlink()
{
    if (!hasFocus())
        return;
    m_caretShown = true;
    const int flash = QApplication::cursorFlashTime();
    if (flash > 0)
        m_blink.start(flash / 2, this);
    else
        m_blink.stop();
    update(cursorRect());
}
