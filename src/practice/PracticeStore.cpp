// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/PracticeStore.h"

#include "common/DurableWrite.h"
#include "common/Log.h"
#include "transcript/DocumentManager.h"

PracticeStore::PracticeStore(const DocumentManager& documents)
    : m_file(documents, Extension, QStringLiteral("the practice record"), lcPractice)
{
}

QString PracticeStore::pathForIdentity(const QString& identity) const
{
    return m_file.pathForIdentity(identity);
}

bool PracticeStore::contains(const QString& identity) const
{
    return m_file.contains(identity);
}

bool PracticeStore::save(const QString& identity, const PracticeRecord& record,
                         QString* error) const
{
    if (!m_file.nameFor(identity, error))
        return false;
    // The learner's history in a file this version cannot read (a newer
    // version's, or damaged) is theirs: it is not replaced behind their back.
    QString unreadable;
    if (contains(identity) && !load(identity, &unreadable))
        return m_file.fail(error, QStringLiteral("The practice record is not saved: %1; "
                                                 "the file is kept as it is")
                                      .arg(unreadable));
    // The folder is made at start-up, but may have been removed since.
    m_file.documents().createDirectory(DocumentManager::TranscriptionsFolder);
    QString reason;
    if (!writeFileDurably(pathForIdentity(identity), record.toJson(), &reason))
        return m_file.fail(error,
                           QStringLiteral("Error writing the practice record: %1").arg(reason));
    return true;
}

std::optional<PracticeRecord> PracticeStore::load(const QString& identity, QString* error) const
{
    const std::optional<QByteArray> bytes = m_file.read(identity, MaxFileBytes, error);
    if (!bytes)
        return std::nullopt;
    QString reason;
    std::optional<PracticeRecord> record = PracticeRecord::fromJson(*bytes, &reason);
    if (!record)
        m_file.fail(error, QStringLiteral("Error reading the practice record %1: %2")
                               .arg(pathForIdentity(identity), reason));
    return record;
}

bool PracticeStore::remove(const QString& identity, QString* error) const
{
    return m_file.remove(identity, error);
}
