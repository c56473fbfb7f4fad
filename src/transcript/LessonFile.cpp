// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/LessonFile.h"

#include "transcript/DocumentManager.h"

#include <QDebug>
#include <QFileInfo>
#include <utility>

LessonFile::LessonFile(const DocumentManager& documents, QString extension, QString what,
                       Category category)
    : m_documents(documents), m_extension(std::move(extension)), m_what(std::move(what)),
      m_category(category)
{
}

bool LessonFile::fail(QString* error, const QString& reason) const
{
    if (error)
        *error = reason;
    qCInfo(m_category).noquote() << reason;
    return false;
}

std::optional<QString> LessonFile::nameFor(const QString& identity, QString* error) const
{
    const QString name = DocumentManager::lessonFileName(identity, m_extension);
    if (name.isNull()) {
        fail(error, QStringLiteral("Not a lesson identity: \"%1\"").arg(identity));
        return std::nullopt;
    }
    return name;
}

QString LessonFile::pathForIdentity(const QString& identity) const
{
    const QString name = DocumentManager::lessonFileName(identity, m_extension);
    return name.isNull() ? QString() : m_documents.pathForFilename(name);
}

bool LessonFile::contains(const QString& identity) const
{
    const QString name = DocumentManager::lessonFileName(identity, m_extension);
    return !name.isNull() && m_documents.fileExistsWithName(name);
}

std::optional<QByteArray> LessonFile::read(const QString& identity, qint64 maxBytes,
                                           QString* error) const
{
    if (error)
        error->clear();
    const std::optional<QString> name = nameFor(identity, error);
    if (!name || !m_documents.fileExistsWithName(*name))
        return std::nullopt;
    const QString path = m_documents.pathForFilename(*name);
    if (maxBytes > 0) {
        const QFileInfo info(path);
        if (!info.isFile() || info.size() > maxBytes) {
            fail(
                error,
                QStringLiteral("Error reading %1 %2: %3")
                    .arg(m_what, path,
                         info.isFile()
                             ? QStringLiteral("%1 bytes, more than a record holds").arg(info.size())
                             : QStringLiteral("not a file")));
            return std::nullopt;
        }
    }
    DocumentError loadError;
    std::optional<QByteArray> bytes = m_documents.loadDataWithName(*name, &loadError);
    if (!bytes)
        fail(error,
             QStringLiteral("Error reading %1: %2").arg(m_what, loadError.localizedDescription));
    return bytes;
}

bool LessonFile::remove(const QString& identity, QString* error) const
{
    const std::optional<QString> name = nameFor(identity, error);
    if (!name)
        return false;
    DocumentError removeError;
    if (!m_documents.deleteFileWithName(*name, &removeError))
        return fail(
            error,
            QStringLiteral("Error removing %1: %2").arg(m_what, removeError.localizedDescription));
    return true;
}
