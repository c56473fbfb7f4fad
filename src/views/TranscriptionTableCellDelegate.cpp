// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/TranscriptionTableCellDelegate.h"

#include "views/CustomTextField.h"
#include "views/RowMarkPainter.h"
#include "views/TranscriptionTableModel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTableView>
#include <QToolTip>

namespace {
constexpr int kText = TranscriptionTableModel::TranscriptionColumn;
// The current-row mark: a bar this wide at the left edge of the row's first
// shown column, as tall as the field of the row being typed in.
constexpr int kMarkWidth = 3;
} // namespace

TranscriptionTableCellDelegate::TranscriptionTableCellDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

int TranscriptionTableCellDelegate::textRoom(const QRect& cell)
{
    // Up to where the row's field ends.
    return CustomTextField::fieldRect(cell).right() + 1 - cell.left() - CustomTextField::kTextInset;
}

const QString& TranscriptionTableCellDelegate::shownText(int row, const QString& text,
                                                         const QRect& cell) const
{
    Shown& entry = m_shown[row];
    const int room = textRoom(cell);
    if (entry.room != room || entry.text != text)
        entry = {text, room, QFontMetrics(m_font).elidedText(text, Qt::ElideRight, room)};
    return entry.shown;
}

void TranscriptionTableCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const
{
    const bool current = index.row() == m_currentRow;
    const auto* table = qobject_cast<const QTableView*>(option.widget);
    const bool firstShown = index.column() == TranscriptionTableModel::LineNumberColumn ||
                            (table && table->isColumnHidden(TranscriptionTableModel::LineNumberColumn));
    const RowMarks* marks = nullptr;
    if (m_rowMarks) {
        const auto found = m_rowMarks->constFind(index.row());
        if (found != m_rowMarks->cend())
            marks = &found.value();
    }
    if (marks && firstShown)
        RowMarkPainter::paintVerdict(*painter, marks->verdict, option.rect, m_font);
    if (current) {
        if (firstShown) {
            const QRect field = CustomTextField::fieldRect(option.rect);
            painter->fillRect(QRect(option.rect.left(), field.top(), kMarkWidth, field.height()),
                              m_markColor);
        }
        // The live editor draws its own text over the row.
        if (index.column() == kText)
            return;
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    // An empty row still shows where its words are missing.
    if (text.isEmpty() && !(marks && index.column() == kText))
        return;
    painter->save();
    painter->setFont(m_font);
    painter->setClipRect(option.rect);
    // Numbers and text share the baseline the editor uses.
    QPointF origin = CustomTextField::textOrigin(option.rect, m_font);
    if (index.column() == TranscriptionTableModel::LineNumberColumn) {
        painter->setPen(m_numberColor);
        origin.setX(option.rect.left() +
                    (option.rect.width() - QFontMetrics(m_font).horizontalAdvance(text)) / 2);
        painter->drawText(origin, text);
    } else {
        painter->setPen(m_textColor);
        const QString& shown = shownText(index.row(), text, option.rect);
        painter->drawText(origin, shown);
        if (marks) {
            // A text cut short keeps its marks up to the ellipsis.
            const qsizetype whole = shown == text ? text.size() : shown.size() - 1;
            const RowMarkPainter::TextPositions positions(text, m_font);
            const auto xAt = [&](qsizetype position) { return origin.x() + positions.x(position); };
            RowMarkPainter::paintMarks(*painter, m_font, marks->marks, xAt, origin.y(), whole);
        }
    }
    painter->restore();
}

bool TranscriptionTableCellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                               const QStyleOptionViewItem& option,
                                               const QModelIndex& index)
{
    if (event && view && event->type() == QEvent::ToolTip && index.column() == kText) {
        // A row cut short shows its whole text.
        const QString text = index.data(Qt::DisplayRole).toString();
        if (shownText(index.row(), text, option.rect) != text) {
            QToolTip::showText(event->globalPos(), text, view->viewport(), option.rect);
            return true;
        }
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

QWidget* TranscriptionTableCellDelegate::createEditor(QWidget* parent,
                                                      const QStyleOptionViewItem& /*option*/,
                                                      const QModelIndex& index) const
{
    if (index.column() != kText)
        return nullptr;
    auto* field = new CustomTextField(parent);
    field->setObjectName(QStringLiteral("TranscriptionInput"));
    field->setFont(m_font);
    field->setTextColor(m_textColor);
    connect(field, &QLineEdit::textEdited, this, [this, field] {
        emit const_cast<TranscriptionTableCellDelegate*>(this)->commitData(field);
    });
    return field;
}

void TranscriptionTableCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* field = qobject_cast<CustomTextField*>(editor);
    if (!field)
        return;
    // A keystroke's own commit comes back here; resetting the same text would
    // move the caret to the end.
    const QString text = index.data(Qt::EditRole).toString();
    if (field->text() != text)
        field->setText(text);
}

void TranscriptionTableCellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                                  const QModelIndex& index) const
{
    if (auto* field = qobject_cast<CustomTextField*>(editor))
        model->setData(index, field->text(), Qt::EditRole);
}

void TranscriptionTableCellDelegate::updateEditorGeometry(QWidget* editor,
                                                          const QStyleOptionViewItem& option,
                                                          const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

bool TranscriptionTableCellDelegate::eventFilter(QObject* /*object*/, QEvent* /*event*/)
{
    return false;
}
