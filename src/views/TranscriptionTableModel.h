// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>
#include <functional>

// The rows of the dictation table: the segment number and the typed text of
// each segment. Display and edit roles carry the texts, so accessibility tools
// read the table as a table of what the learner typed.
class TranscriptionTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column
    {
        LineNumberColumn = 0,
        TranscriptionColumn = 1,
        ColumnCount = 2
    };

    explicit TranscriptionTableModel(QObject* parent = nullptr);

    static QString columnIdentifier(int column);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    // Replaces every row; the cache of typed texts starts empty.
    void resetTranscriptions(const QStringList& texts);
    // Stores the text of one row in the list and the cache. Only the number
    // cell is reported changed: an open editor keeps what it shows.
    void updateTranscription(const QString& text, int row);
    const QStringList& transcriptions() const { return m_transcriptions; }
    // The latest typed text of a row, preferred over the list when shown.
    QString textForRow(int row) const;
    void clearCache() { m_cache.clear(); }

    void setShowLineNumbers(bool show);
    // What a row's tooltip says, asked for when it shows; no tooltip when
    // unset or empty.
    void setToolTipSource(std::function<QString(int row)> source);

private:
    QStringList m_transcriptions;
    QHash<int, QString> m_cache;
    bool m_showLineNumbers = true;
    std::function<QString(int)> m_toolTipSource;
};
