// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/TranscriptionTableModel.h"

#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

TranscriptionTableModel::TranscriptionTableModel(QObject* parent) : QAbstractTableModel(parent) {}

QString TranscriptionTableModel::columnIdentifier(int column)
{
    return column == LineNumberColumn ? QStringLiteral("LineNumberColumn")
                                      : QStringLiteral("TranscriptionColumn");
}

int TranscriptionTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_transcriptions.size());
}

int TranscriptionTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TranscriptionTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_transcriptions.size())
        return {};
    if (role == Qt::ToolTipRole) {
        const QString tip = m_toolTipSource ? m_toolTipSource(index.row()) : QString();
        return tip.isEmpty() ? QVariant() : QVariant(tip);
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::AccessibleTextRole)
        return {};
    if (index.column() == LineNumberColumn)
        return QString::number(index.row() + 1);
    return textForRow(index.row());
}

bool TranscriptionTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || index.column() != TranscriptionColumn ||
        index.row() >= m_transcriptions.size())
        return false;
    const QString text = value.toString();
    m_cache.insert(index.row(), text);
    m_transcriptions[index.row()] = text;
    emit dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

Qt::ItemFlags TranscriptionTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == TranscriptionColumn)
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant TranscriptionTableModel::headerData(int section, Qt::Orientation orientation,
                                             int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == LineNumberColumn)
        return LocalizedString(Texts::Segment);
    return m_showLineNumbers ? LocalizedString(Texts::DictationAfterSeparator)
                             : LocalizedString(Texts::Dictation);
}

void TranscriptionTableModel::resetTranscriptions(const QStringList& texts)
{
    beginResetModel();
    m_transcriptions = texts;
    m_cache.clear();
    endResetModel();
}

void TranscriptionTableModel::updateTranscription(const QString& text, int row)
{
    if (row < 0 || row >= m_transcriptions.size())
        return;
    m_transcriptions[row] = text;
    m_cache.insert(row, text);
    const QModelIndex number = index(row, LineNumberColumn);
    emit dataChanged(number, number);
}

QString TranscriptionTableModel::textForRow(int row) const
{
    const auto cached = m_cache.constFind(row);
    if (cached != m_cache.constEnd())
        return *cached;
    return row >= 0 && row < m_transcriptions.size() ? m_transcriptions[row] : QString();
}

void TranscriptionTableModel::setShowLineNumbers(bool show)
{
    if (m_showLineNumbers == show)
        return;
    m_showLineNumbers = show;
    emit headerDataChanged(Qt::Horizontal, TranscriptionColumn, TranscriptionColumn);
}

void TranscriptionTableModel::setToolTipSource(std::function<QString(int)> source)
{
    m_toolTipSource = std::move(source);
}
