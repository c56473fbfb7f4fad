// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/CustomTextField.h"

#include "views/ColorContrast.h"
#include "views/NamedColors.h"
#include "views/RowMarkPainter.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOptionFrame>
#include <algorithm>

namespace {

constexpr int kCaretWidth = 2;
// QLineEdit keeps this much room of its own before the text and, when the
// text is top-aligned, above it.
constexpr int kLineEditMarginX = 2;
constexpr int kLineEditMarginY = 1;
// The field leaves the row's edges free (the left ones for the current-row
// mark when there is no number column) and rounds its corners.
constexpr int kFieldInsetX = 4;
constexpr int kFieldInsetY = 2;
constexpr int kFieldRadius = 4;
// Black on the field reads at least this well.
constexpr double kFieldContrast = 10.0;

// QLineEdit draws its caret in the text colour: this style hides that caret so
// the field can draw its own in `cursorColor`. Its panel is the light field
// while the field has the focus, else nothing: the row shows through.
class FieldStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        if (metric == PM_TextCursorWidth)
            return 0;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (element != PE_PanelLineEdit) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        if (widget && widget->hasFocus())
            paintField(*painter, CustomTextField::fieldRect(widget->rect()),
                       CustomTextField::fieldColor());
    }

private:
    // Painted on every keystroke: the long middle is a plain fill, the
    // rounded ends come from a small antialiased picture made once.
    void paintField(QPainter& painter, const QRect& field, const QColor& color) const
    {
        const qreal ratio = painter.device()->devicePixelRatioF();
        if (m_ends.isNull() || m_endsColor != color || m_ends.devicePixelRatio() != ratio ||
            m_ends.height() != qRound(field.height() * ratio)) {
            // Both ends side by side: a rounded rectangle as wide as two radii.
            m_ends = QPixmap(QSize(2 * kFieldRadius, field.height()) * ratio);
            m_ends.setDevicePixelRatio(ratio);
            m_ends.fill(Qt::transparent);
            QPainter ends(&m_ends);
            ends.setRenderHint(QPainter::Antialiasing);
            ends.setPen(Qt::NoPen);
            ends.setBrush(color);
            ends.drawRoundedRect(QRectF(0, 0, 2 * kFieldRadius, field.height()), kFieldRadius,
                                 kFieldRadius);
            m_endsColor = color;
        }
        const QRectF half(0, 0, kFieldRadius * ratio, field.height() * ratio);
        painter.fillRect(field.adjusted(kFieldRadius, 0, -kFieldRadius, 0), color);
        painter.drawPixmap(QRectF(field.left(), field.top(), kFieldRadius, field.height()), m_ends,
                           half);
        painter.drawPixmap(
            QRectF(field.right() + 1 - kFieldRadius, field.top(), kFieldRadius, field.height()),
            m_ends, half.translated(half.width(), 0));
    }

    mutable QPixmap m_ends;
    mutable QColor m_endsColor;
};

} // namespace

QPointF CustomTextField::textOrigin(const QRect& cell, const QFont& font)
{
    return {qreal(cell.left() + kTextInset), lineTop(cell, font) + QFontMetricsF(font).ascent()};
}

int CustomTextField::lineTop(const QRect& cell, const QFont& font)
{
    // Centred, the odd pixel below, as a line edit centres its line.
    return cell.top() + (cell.height() - QFontMetrics(font).height() + 1) / 2;
}

QRect CustomTextField::fieldRect(const QRect& cell)
{
    return cell.adjusted(kFieldInsetX, kFieldInsetY, -kFieldInsetX, -kFieldInsetY);
}

QColor CustomTextField::fieldColor()
{
    const QColor base = QApplication::palette().color(QPalette::Active, QPalette::Base);
    return ColorContrast::ratio(base, Qt::black) >= kFieldContrast ? base : QColor(Qt::white);
}

CustomTextField::CustomTextField(QWidget* parent)
    : QLineEdit(parent), m_cursorColor(NamedColors::systemBlue()), m_textColor(Qt::black)
{
    auto* style = new FieldStyle;
    style->setParent(this);
    setStyle(style);
    setFrame(false);
    setAutoFillBackground(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    // Top-aligned, the line's place does not depend on the text's glyphs;
    // placeText() moves it to where the painted rows put theirs.
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QPalette pal = palette();
    pal.setColor(QPalette::Base, Qt::transparent);
    pal.setColor(QPalette::Highlight, QApplication::palette().color(QPalette::Highlight));
    pal.setColor(QPalette::HighlightedText,
                 QApplication::palette().color(QPalette::HighlightedText));
    setPalette(pal);
    applyTextColor(m_textColor);
    placeText();
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

void CustomTextField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        placeText();
}

void CustomTextField::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    placeText();
}

void CustomTextField::placeText()
{
    // The line edit puts its line at its contents' top-left plus its own
    // margins; the text margins make up the rest of the way to textOrigin().
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const QMargins margins(kTextInset - kLineEditMarginX - contents.left(),
                           lineTop(rect(), font()) - kLineEditMarginY - contents.top(), 0, 0);
    if (textMargins() != margins)
        setTextMargins(margins);
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
    update();
    emit editingBegan();
}

void CustomTextField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    m_blink.stop();
    m_caretShown = false;
    applyTextColor(m_textColor);
    update();
}

void CustomTextField::setMarks(const QList<TextMark>& marks)
{
    if (m_marks == marks)
        return;
    m_marks = marks;
    update();
}

void CustomTextField::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    const QRect around = cursorRect();
    QPainter painter(this);
    if (!m_marks.isEmpty()) {
        // The line edit tells only where its caret is; every other position
        // is measured from there, which also follows a scrolled text.
        const QString shown = displayText();
        const RowMarkPainter::TextPositions positions(shown, font());
        const qreal caretX = around.center().x() + 1;
        const qreal caretAdvance = positions.x(cursorPosition());
        const auto xAt = [&](qsizetype position) {
            return caretX + positions.x(position) - caretAdvance;
        };
        RowMarkPainter::paintMarks(painter, font(), m_marks, xAt,
                                   textOrigin(rect(), font()).y(), shown.size());
    }
    if (!m_caretShown || !hasFocus() || hasSelectedText())
        return;
    const int height = std::min(QFontMetrics(font()).height(), this->height());
    painter.fillRect(QRect(around.center().x() - kCaretWidth / 2 + 1, lineTop(rect(), font()),
                           kCaretWidth, height),
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
