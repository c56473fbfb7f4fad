#pragma once

#include <QColor>
#include <QFont>
#include <QStyledItemDelegate>

// Paints the rows of the dictation table (number centred in the complement of
// the background, text left aligned in the dictation colour, both vertically
// centred, no selection highlight, no focus frame) and makes the one live
// editor, a CustomTextField, for the current row.
class TranscriptionTableCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit TranscriptionTableCellDelegate(QObject* parent = nullptr);

    void setFont(const QFont& font) { m_font = font; }
    void setTextColor(const QColor& color) { m_textColor = color; }
    void setNumberColor(const QColor& color) { m_numberColor = color; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

protected:
    // The base commits and closes the editor on Return, Tab, Backtab, Escape
    // and focus loss; a dictation row stays open, and each keystroke is
    // committed as it is typed instead.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QFont m_font;
    QColor m_textColor;
    QColor m_numberColor;
};
