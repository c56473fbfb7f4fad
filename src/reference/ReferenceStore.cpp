// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ReferenceStore.h"

#include "common/Log.h"
#include "transcript/DocumentManager.h"

ReferenceStore::ReferenceStore(const DocumentManager& documents)
    : m_file(documents, Extension, QStringLiteral("the reference text"), lcReference)
{
}

QString ReferenceStore::pathForIdentity(const QString& identity) const
{
    return m_file.pathForIdentity(identity);
}

bool ReferenceStore::contains(const QString& identity) const
{
    return m_file.contains(identity);
}

bool ReferenceStore::save(const QString& identity, const ReferenceText& reference,
                          QString* error) const
{
    const std::optional<QString> name = m_file.nameFor(identity, error);
    if (!name)
        return false;
    // The folder is made at start-up, but may have been removed since.
    m_file.documents().createDirectory(DocumentManager::TranscriptionsFolder);
    DocumentError saveError;
    if (!m_file.documents().saveData(reference.toJson(), *name, &saveError))
        return m_file.fail(error, QStringLiteral("Error writing the reference text: %1")
                                      .arg(saveError.localizedDescription));
    return true;
}

std::optional<ReferenceText> ReferenceStore::load(const QString& identity, QString* error) const
{
    const std::optional<QByteArray> bytes = m_file.read(identity, 0, error);
    if (!bytes)
        return std::nullopt;
    QString reason;
    std::optional<ReferenceText> reference = ReferenceText::fromJson(*bytes, &reason);
    if (!reference)
        m_file.fail(error, QStringLiteral("Error reading the reference text %1: %2")
                               .arg(pathForIdentity(identity), reason));
    return reference;
}

bool ReferenceStore::remove(const QString& identity, QString* error) const
{
    return m_file.remove(identity, error);
}
