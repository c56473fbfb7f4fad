// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/PracticeStore.h"

#include "common/DurableWrite.h"
#include "common/Log.h"
#include "transcript/DocumentManager.h"

#include <QDebug>
#include <QFileInfo>

namespace {

bool fail(QString* error, const QString& reason)
{
    if (error)
        *error = reason;
    qCInfo(lcPractice).noquote() << reason;
    return false;
}

} // namespace

PracticeStore::PracticeStore(const DocumentManager& documents) : m_documents(documents) {}

QString PracticeStore::nameForIdentity(const QString& identity)
{
    return DocumentManager::lessonFileName(identity, Extension);
}

QString PracticeStore::pathForIdentity(const QString& identity) const
{
    const QString name = nameForIdentity(identity);
    return name.isNull() ? QString() : m_documents.pathForFilename(name);
}

bool PracticeStore::contains(const QString& identity) const
{
    const QString name = nameForIdentity(identity);
    return !name.isNull() && m_documents.fileExistsWithName(name);
}

bool PracticeStore::save(const QString& identity, const PracticeRecord& record,
                         QString* error) const
{
    const QString path = pathForIdentity(identity);
    if (path.isNull())
        return fail(error, QStringLiteral("Not a lesson identity: \"%1\"").arg(identity));
    // The learner's history in a file this version cannot read (a newer
    // version's, or damaged) is theirs: it is not replaced behind their back.
    QString unreadable;
    if (contains(identity) && !load(identity, &unreadable))
        return fail(error, QStringLiteral("The practice record is not saved: %1; "
                                          "the file is kept as it is")
                               .arg(unreadable));
    // The folder is made at start-up, but may have been removed since.
    m_documents.createDirectory(DocumentManager::TranscriptionsFolder);
    QString reason;
    if (!writeFileDurably(path, record.toJson(), &reason))
        return fail(error, QStringLiteral("Error writing the practice record: %1").arg(reason));
    return true;
}

std::optional<PracticeRecord> PracticeStore::load(const QString& identity, QString* error) const
{
    if (error)
        error->clear();
    const QString name = nameForIdentity(identity);
    if (name.isNull()) {
        fail(error, QStringLiteral("Not a lesson identity: \"%1\"").arg(identity));
        return std::nullopt;
    }
    if (!m_documents.fileExistsWithName(name))
        return std::nullopt;
    const QString path = m_documents.pathForFilename(name);
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > MaxFileBytes) {
        fail(error,
             QStringLiteral("Error reading the practice record %1: %2")
                 .arg(path,
                      info.isFile()
                          ? QStringLiteral("%1 bytes, more than a record holds").arg(info.size())
                          : QStringLiteral("not a file")));
        return std::nullopt;
    }
    DocumentError loadError;
    const std::optional<QByteArray> bytes = m_documents.loadDataWithName(name, &loadError);
    if (!bytes) {
        fail(error, QStringLiteral("Error reading the practice record: %1")
                        .arg(loadError.localizedDescription));
        return std::nullopt;
    }
    QString reason;
    std::optional<PracticeRecord> record = PracticeRecord::fromJson(*bytes, &reason);
    if (!record)
        fail(error, QStringLiteral("Error reading the practice record %1: %2").arg(path, reason));
    return record;
}

bool PracticeStore::remove(const QString& identity, QString* error) const
{
    const QString name = nameForIdentity(identity);
    if (name.isNull())
        return fail(error, QStringLiteral("Not a lesson identity: \"%1\"").arg(identity));
    DocumentError removeError;
    if (!m_documents.deleteFileWithName(name, &removeError))
        return fail(error, QStringLiteral("Error removing the practice record: %1")
                               .arg(removeError.localizedDescription));
    return true;
}
