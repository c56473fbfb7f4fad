// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ReferenceStore.h"

#include "common/Log.h"
#include "transcript/DocumentManager.h"

#include <QDebug>

namespace {

bool fail(QString* error, const QString& reason)
{
    if (error)
        *error = reason;
    qCInfo(lcReference).noquote() << reason;
    return false;
}

} // namespace

ReferenceStore::ReferenceStore(const DocumentManager& documents) : m_documents(documents) {}

QString ReferenceStore::nameForIdentity(const QString& identity)
{
    return DocumentManager::lessonFileName(identity, Extension);
}

QString ReferenceStore::pathForIdentity(const QString& identity) const
{
    const QString name = nameForIdentity(identity);
    return name.isNull() ? QString() : m_documents.pathForFilename(name);
}

bool ReferenceStore::contains(const QString& identity) const
{
    const QString name = nameForIdentity(identity);
    return !name.isNull() && m_documents.fileExistsWithName(name);
}

bool ReferenceStore::save(const QString& identity, const ReferenceText& reference,
                          QString* error) const
{
    const QString name = nameForIdentity(identity);
    if (name.isNull())
        return fail(error, QStringLiteral("Not a lesson identity: \"%1\"").arg(identity));
    // The folder is made at start-up, but may have been removed since.
    m_documents.createDirectory(DocumentManager::TranscriptionsFolder);
    DocumentError saveError;
    if (!m_documents.saveData(reference.toJson(), name, &saveError))
        return fail(error, QStringLiteral("Error writing the reference text: %1")
                               .arg(saveError.localizedDescription));
    return true;
}

std::optional<ReferenceText> ReferenceStore::load(const QString& identity, QString* error) const
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
    DocumentError loadError;
    const std::optional<QByteArray> bytes = m_documents.loadDataWithName(name, &loadError);
    if (!bytes) {
        fail(error, QStringLiteral("Error reading the reference text: %1")
                        .arg(loadError.localizedDescription));
        return std::nullopt;
    }
    QString reason;
    std::optional<ReferenceText> reference = ReferenceText::fromJson(*bytes, &reason);
    if (!reference)
        fail(error, QStringLiteral("Error reading the reference text %1: %2")
                        .arg(m_documents.pathForFilename(name), reason));
    return reference;
}

bool ReferenceStore::remove(const QString& identity, QString* error) const
{
    const QString name = nameForIdentity(identity);
    if (name.isNull())
        return fail(error, QStringLiteral("Not a lesson identity: \"%1\"").arg(identity));
    DocumentError removeError;
    if (!m_documents.deleteFileWithName(name, &removeError))
        return fail(error, QStringLiteral("Error removing the reference text: %1")
                               .arg(removeError.localizedDescription));
    return true;
}
