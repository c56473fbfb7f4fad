// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/RowMarks.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

// Paints the rows of the dictation table (number centred in the complement of
// the background, text left aligned in the dictation colour, both on the
// editor's baseline, no selection highlight, no focus frame), marks the
// current row with a thin bar at its left edge, and makes the one live
// editor, a CustomTextField, for the current row. A text too long for its
// cell is cut short with an ellipsis and shown whole in a tooltip.
class TranscriptionTableCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit TranscriptionTableCellDelegate(QObject* parent = nullptr);

    void setFont(const QFont& font)
    {
        m_font = font;
        m_shown.clear();
    }
    void setTextColor(const QColor& color) { m_textColor = color; }
    void setNumberColor(const QColor& color) { m_numberColor = color; }
    void setMarkColor(const QColor& color) { m_markColor = color; }
    // The row with the live editor (-1 for none): it gets the mark, and its
    // text is left to the editor.
    void setCurrentRow(int row) { m_currentRow = row; }
    // The marks of checked rows, owned by the table; null for none.
    void setRowMarks(const QHash<int, RowMarks>* marks) { m_rowMarks = marks; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    // The base commits and closes the editor on Return, Tab, Backtab, Escape
    // and focus loss; a dictation row stays open, and each keystroke is
    // committed as it is typed instead.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    // The width a row's text may take in `cell` before it is cut short.
    static int textRoom(const QRect& cell);
    // A row's text as painted in `cell`: whole, or cut short with "…".
    const QString& shownText(int row, const QString& text, const QRect& cell) const;

    // The shown text of each painted row, kept between paints: measuring a
    // text to cut it short costs as much as drawing it.
    struct Shown
    {
        QString text;
        int room = -1;
        QString shown;
    };
    mutable QHash<int, Shown> m_shown;

    QFont m_font;
    QColor m_textColor;
    QColor m_numberColor;
    QColor m_markColor;
    int m_currentRow = -1;
    const QHash<int, RowMarks>* m_rowMarks = nullptr;
};
