#include "views/TranscriptionTableCellDelegate.h"

#include "views/CustomTextField.h"
#include "views/TranscriptionTableModel.h"

#include <QAbstractItemView>
#include <QPainter>

namespace {
// The number cell sits this much above the row's middle, as the text cells'
// baseline does.
constexpr int kNumberRaise = 2;
} // namespace

TranscriptionTableCellDelegate::TranscriptionTableCellDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void TranscriptionTableCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const
{
    // The live editor draws its own text over the row.
    if (const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
        view && view->indexWidget(index))
        return;
    const QString text = index.data(Qt::DisplayRole).toString();
    if (text.isEmpty())
        return;
    painter->save();
    painter->setFont(m_font);
    if (index.column() == TranscriptionTableModel::LineNumberColumn) {
        painter->setPen(m_numberColor);
        painter->drawText(option.rect.translated(0, -kNumberRaise), Qt::AlignCenter, text);
    } else {
        painter->setPen(m_textColor);
        const QRect area = option.rect.adjusted(CustomTextField::kTextInset, 0, 0, 0);
        painter->setClipRect(option.rect);
        painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    }
    painter->restore();
}

QWidget* TranscriptionTableCellDelegate::createEditor(QWidget* parent,
                                                      const QStyleOptionViewItem& /*option*/,
                                                      const QModelIndex& index) const
{
    if (index.column() != TranscriptionTableModel::TranscriptionColumn)
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
