// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/TranscriptionTableView.h"

#include "audio/AudioManager.h"
#include "transcript/LrcLine.h"
#include "views/CustomTableHeaderView.h"
#include "views/CustomTextField.h"
#include "views/TranscriptionTableCellDelegate.h"
#include "views/TranscriptionTableModel.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTimer>

namespace {
// Room under the last row, so it never sits on the window's edge.
constexpr int kBottomInset = 10;
constexpr int kText = TranscriptionTableModel::TranscriptionColumn;
} // namespace

TranscriptionTableView::TranscriptionTableView(AudioManager& engine, NotificationCenter& center,
                                               Defaults& defaults, QWidget* parent)
    : QTableView(parent), m_engine(engine), m_center(center), m_defaults(defaults),
      m_model(new TranscriptionTableModel(this)),
      m_cellDelegate(new TranscriptionTableCellDelegate(this))
{
    setModel(m_model);
    setItemDelegate(m_cellDelegate);
    m_header = new CustomTableHeaderView(this);
    setHorizontalHeader(m_header);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    m_header->setMinimumSectionSize(1);
    m_header->setSectionResizeMode(TranscriptionTableModel::LineNumberColumn, QHeaderView::Fixed);
    m_header->setSectionResizeMode(kText, QHeaderView::Stretch);

    setShowGrid(false);
    setFrameShape(QFrame::NoFrame);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    // Only the current row has a live editor, opened by the table itself.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAutoFillBackground(true);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TranscriptionTableView::selectionDidChange);
    m_cellDelegate->setRowMarks(&m_rowMarks);
    connect(m_model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& from, const QModelIndex& to) {
                for (int row = from.row(); row <= to.row(); ++row)
                    emit rowTextChanged(row);
            });

    initDisplaySetting();
    initHeader();
    applyRowHeight();
    applyBackgroundColor();
    observeNotifications();
}

TranscriptionTableView::~TranscriptionTableView() = default;

int TranscriptionTableView::rowCount() const
{
    return m_model->rowCount();
}

void TranscriptionTableView::updateTranscriptions(const QStringList& texts)
{
    moveEditorToRow(-1);
    if (QWidget* focused = focusWidget(); focused && isAncestorOf(focused))
        focused->clearFocus();
    m_rowMarks.clear();
    m_model->resetTranscriptions(texts);
    m_currentIndex = -1;
    m_currentEditingRow = -1;
    const quint64 generation = ++m_loadGeneration;
    if (texts.isEmpty())
        return;
    // After the reset has been laid out.
    QTimer::singleShot(0, this, [this, generation] {
        if (generation != m_loadGeneration || rowCount() == 0)
            return;
        m_reportSelection = false;
        selectSingleRow(0);
        m_reportSelection = true;
        focusEditor(0);
        m_currentIndex = 0;
        m_currentEditingRow = 0;
        if (m_transcriptionDelegate)
            m_transcriptionDelegate->didSelectSegmentAtIndex(0);
    });
}

void TranscriptionTableView::replaceTranscriptions(const QStringList& texts, qint64 current,
                                                   std::optional<qsizetype> caret)
{
    // The editor keeps the typing focus, also while an alert has it for now:
    // it is the window's focus child then, given back when the alert closes.
    const QWidget* focus = window()->focusWidget();
    const bool hadFocus = focus && (focus == this || focus == m_editor.data());
    moveEditorToRow(-1);
    m_rowMarks.clear();
    m_model->resetTranscriptions(texts);
    ++m_loadGeneration; // a first-row selection still waiting is overtaken
    m_currentIndex = -1;
    m_currentEditingRow = -1;
    if (texts.isEmpty())
        return;
    const int row = int(qBound<qint64>(0, current, texts.size() - 1));
    m_reportSelection = false;
    selectSingleRow(row);
    m_reportSelection = true;
    moveEditorToRow(row);
    m_currentIndex = row;
    m_currentEditingRow = row;
    scrollTo(m_model->index(row, kText));
    if (!m_editor)
        return;
    // The caret is placed after the focus, which puts it at the end.
    if (hadFocus)
        m_editor->setFocus(Qt::OtherFocusReason);
    if (caret)
        m_editor->setCursorPosition(int(*caret));
}

void TranscriptionTableView::setRowMarks(qint64 row, const RowMarks& marks)
{
    if (row < 0 || row >= rowCount())
        return;
    const auto found = m_rowMarks.constFind(int(row));
    if (found == m_rowMarks.cend() ? marks.isEmpty() : found.value() == marks)
        return;
    if (marks.isEmpty())
        m_rowMarks.remove(int(row));
    else
        m_rowMarks.insert(int(row), marks);
    if (m_editor && m_editorRow == row)
        m_editor->setMarks(marks.marks);
    for (int column = 0; column < m_model->columnCount(); ++column)
        update(m_model->index(int(row), column));
}

void TranscriptionTableView::clearAllRowMarks()
{
    if (m_rowMarks.isEmpty())
        return;
    m_rowMarks.clear();
    if (m_editor)
        m_editor->setMarks({});
    viewport()->update();
}

void TranscriptionTableView::setRowToolTipSource(std::function<QString(qint64)> source)
{
    // The row's editor has no tooltip of its own, so a tooltip asked over it
    // reaches the viewport and comes from here too.
    m_model->setToolTipSource(
        source ? std::function<QString(int)>([source](int row) { return source(row); })
               : std::function<QString(int)>());
}

void TranscriptionTableView::updateTranscription(const QString& text, qint64 index)
{
    if (index >= 0 && index < rowCount())
        m_model->updateTranscription(text, int(index));
}

void TranscriptionTableView::setCurrentSegment(qint64 index)
{
    if (index < 0 || index == m_currentIndex || index >= rowCount())
        return;
    m_currentIndex = index;
    selectSingleRow(int(index));
    scrollTo(m_model->index(int(index), kText));
}

QString TranscriptionTableView::generateLRCStringForText(const QString& text, qint64 index) const
{
    return Lrc::formatLine(m_engine.getTimestampForIndex(index), text);
}

const QStringList& TranscriptionTableView::mutableTranscriptions() const
{
    return m_model->transcriptions();
}

void TranscriptionTableView::clearCache()
{
    m_model->clearCache();
}

void TranscriptionTableView::setTranscriptionDelegate(TranscriptionTableDelegate* delegate)
{
    m_transcriptionDelegate = delegate;
}

QWidget* TranscriptionTableView::editorForRow(qint64 row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    return indexWidget(m_model->index(int(row), kText));
}

std::optional<qsizetype> TranscriptionTableView::editingCaret() const
{
    if (!m_editor || !m_editor->hasFocus())
        return std::nullopt;
    return m_editor->cursorPosition();
}

bool TranscriptionTableView::isDictationEditor(const QObject* widget) const
{
    return widget && widget == m_editor.data();
}

void TranscriptionTableView::selectionDidChange()
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    const int row = selected.isEmpty() ? -1 : selected.first().row();
    if (row >= 0 && row != m_currentIndex)
        m_currentIndex = row;
    if (row >= 0)
        moveEditorToRow(row);
    if (m_reportSelection && m_transcriptionDelegate)
        m_transcriptionDelegate->didSelectSegmentAtIndex(row);
}

void TranscriptionTableView::selectSingleRow(int row)
{
    const QModelIndex first = m_model->index(row, 0);
    const QModelIndex last = m_model->index(row, m_model->columnCount() - 1);
    selectionModel()->setCurrentIndex(m_model->index(row, kText), QItemSelectionModel::NoUpdate);
    selectionModel()->select(QItemSelection(first, last), QItemSelectionModel::ClearAndSelect);
}

void TranscriptionTableView::moveEditorToRow(int row)
{
    if (m_editor && m_editorRow == row)
        return;
    // The window's focus child counts too: while an alert is up the editor
    // has no focus, yet gets it back when the alert closes.
    const bool hadFocus =
        m_editor && (m_editor->hasFocus() || window()->focusWidget() == m_editor.data());
    if (m_editorRow >= 0 && m_editorRow < rowCount()) {
        closePersistentEditor(m_model->index(m_editorRow, kText));
        update(m_model->index(m_editorRow, TranscriptionTableModel::LineNumberColumn));
    }
    m_editor = nullptr;
    m_editorRow = -1;
    m_cellDelegate->setCurrentRow(-1);
    if (row < 0 || row >= rowCount())
        return;
    const QModelIndex index = m_model->index(row, kText);
    m_cellDelegate->setCurrentRow(row);
    openPersistentEditor(index);
    update(m_model->index(row, TranscriptionTableModel::LineNumberColumn));
    m_editor = qobject_cast<CustomTextField*>(indexWidget(index));
    m_editorRow = row;
    emit currentRowChanged(row);
    if (!m_editor)
        return;
    // The view selects a new editor's whole text; entering a row puts the
    // caret after what is there instead, so typing goes on from its end.
    m_editor->deselect();
    m_editor->end(false);
    m_editor->setMarks(m_rowMarks.value(row).marks);
    connect(m_editor, &CustomTextField::editingBegan, this,
            [this, row] { m_currentEditingRow = row; });
    // The learner keeps typing in whichever row became current.
    if (hadFocus)
        m_editor->setFocus(Qt::OtherFocusReason);
}

void TranscriptionTableView::focusEditor(int row)
{
    moveEditorToRow(row);
    if (m_editor)
        m_editor->setFocus(Qt::OtherFocusReason);
}

void TranscriptionTableView::mousePressEvent(QMouseEvent* event)
{
    const int clicked = rowAt(event->position().toPoint().y());
    const bool alreadySelected =
        clicked >= 0 && selectionModel()->isRowSelected(clicked, QModelIndex());
    QTableView::mousePressEvent(event);
    // A click on the row that is already selected changes no selection, yet
    // the session hears of it as of any other (it saves on every report).
    if (alreadySelected && m_reportSelection && m_transcriptionDelegate)
        m_transcriptionDelegate->didSelectSegmentAtIndex(clicked);
    int row = clicked;
    if (row < 0)
        row = int(m_currentIndex);
    if (row >= 0 && row < rowCount())
        focusEditor(row);
}

void TranscriptionTableView::updateGeometries()
{
    QTableView::updateGeometries();
    // QTableView sets the margins to its headers' sizes each time; add the
    // bottom room back. When the table is shown, the nested call made by the
    // resize does it before the scroll range is measured.
    const QMargins margins = viewportMargins();
    if (margins.bottom() != kBottomInset)
        setViewportMargins(margins.left(), margins.top(), margins.right(), kBottomInset);
}
