// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/RowMarks.h"

#include "views/TranscriptionTableDelegate.h"

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QTableView>
#include <functional>
#include <optional>

class AudioManager;
class CustomTableHeaderView;
class CustomTextField;
class Defaults;
class NotificationCenter;
class TranscriptionTableCellDelegate;
class TranscriptionTableModel;

// The table the learner types in: one row per segment, an optional column
// with the segment number and a wide column with the typed text. The table
// keeps its own copy of the texts; the current row has the one live text
// field, the others are painted. Selecting a row tells the session controller
// which segment to play.
class TranscriptionTableView : public QTableView
{
    Q_OBJECT
public:
    // Reads the look from `defaults`, observes the look and the waveform's
    // segment clicks on `center`, and asks `engine` for segment starts.
    TranscriptionTableView(AudioManager& engine, NotificationCenter& center, Defaults& defaults,
                           QWidget* parent = nullptr);
    ~TranscriptionTableView() override;

    // Replaces every row; on the next turn of the event loop row 0 is
    // selected and takes the typing focus.
    void updateTranscriptions(const QStringList& texts);
    void updateTranscription(const QString& text, qint64 index);
    // Replaces every row with `current` selected at once and nothing
    // reported: the session has already made it current. The caret goes to
    // `caret` in its editor (the end when unset), which keeps the focus.
    void replaceTranscriptions(const QStringList& texts, qint64 current,
                               std::optional<qsizetype> caret = std::nullopt);
    // The caret in the current row's editor while it has the focus.
    std::optional<qsizetype> editingCaret() const;
    // Selects a row from outside and scrolls it into view.
    void setCurrentSegment(qint64 index);
    // The transcript line of a row: "[mm:ss.mmm]text" at its segment's start.
    QString generateLRCStringForText(const QString& text, qint64 index) const;
    const QStringList& mutableTranscriptions() const;
    void clearCache();

    qint64 currentIndex() const { return m_currentIndex; }
    qint64 currentEditingRow() const { return m_currentEditingRow; }
    void setTranscriptionDelegate(TranscriptionTableDelegate* delegate);

    // A check's marks on a row, drawn in the painted row and in its editor;
    // an empty RowMarks takes them away. Replacing the rows takes them all.
    void setRowMarks(qint64 row, const RowMarks& marks);
    void clearAllRowMarks();
    // What a row's tooltip says (nothing when empty), asked for when it shows.
    void setRowToolTipSource(std::function<QString(qint64 row)> source);
    RowMarks rowMarks(qint64 row) const { return m_rowMarks.value(int(row)); }

    // The live text field of a row (null when the row has none), and whether
    // a widget is one: a key hook lets its shortcuts act while a row is typed in.
    QWidget* editorForRow(qint64 row) const;
    bool isDictationEditor(const QObject* widget) const;

    QColor tableBackgroundColor() const { return m_tableBackgroundColor; }
    QColor dictationTextColor() const { return m_dictationTextColor; }
    QFont dictationTextFont() const { return m_dictationTextFont; }
    bool showLineNumbers() const { return m_showLineNumbers; }
    void setShowLineNumbers(bool show);

    // The colour the segment numbers are drawn in over `color`; invalid for
    // an invalid colour.
    static QColor complementaryColorFor(const QColor& color);
    // The size of the "Segment" title in `font`; the number column's width and
    // the measure of row and header heights.
    QSize getTableHeaderSegmentSize(const QFont& font) const;
    int tableHeaderHeight() const { return m_tableHeaderHeight; }

signals:
    // A row's text changed, typed or set from outside.
    void rowTextChanged(qint64 row);
    // The live editor moved to another row: the one the learner works on.
    void currentRowChanged(qint64 row);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void updateGeometries() override;

private:
    void initDisplaySetting();
    void observeNotifications();
    void initHeader();
    void applyRowHeight();
    void applyBackgroundColor();
    void applyDictationTextColor();
    void applyFont();

    void selectionDidChange();
    void selectSingleRow(int row);
    void moveEditorToRow(int row);
    void focusEditor(int row);
    int rowCount() const;

    AudioManager& m_engine;
    NotificationCenter& m_center;
    Defaults& m_defaults;

    TranscriptionTableModel* m_model = nullptr;
    TranscriptionTableCellDelegate* m_cellDelegate = nullptr;
    CustomTableHeaderView* m_header = nullptr;
    TranscriptionTableDelegate* m_transcriptionDelegate = nullptr;

    QHash<int, RowMarks> m_rowMarks;
    QPointer<CustomTextField> m_editor;
    int m_editorRow = -1;
    qint64 m_currentIndex = -1;
    qint64 m_currentEditingRow = -1;
    bool m_reportSelection = true;
    // Drops a deferred first-row selection that a newer load has overtaken.
    quint64 m_loadGeneration = 0;

    QColor m_tableBackgroundColor;
    QColor m_dictationTextColor;
    QFont m_dictationTextFont;
    bool m_showLineNumbers = true;
    int m_tableHeaderHeight = 0;
};
