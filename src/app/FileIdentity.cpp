// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileIdentity.h"

#include "common/FileStat.h"
#include "common/Log.h"
#include "transcript/DocumentManager.h"

#include <QCryptographicHash>
#include <QDebug>

namespace FileIdentity {

QString keyTime(const std::optional<QDateTime>& time)
{
    if (!time || !time->isValid())
        return QStringLiteral("(null)");
    return time->toUTC().toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
}

std::optional<QString> identityKeyForFileAtPath(const QString& path, QString* error)
{
    const std::optional<FileStat> st = statFile(path, true, error);
    if (!st)
        return std::nullopt;
    return QStringLiteral("%1_%2_%3_%4_%5")
        .arg(path, QString::number(st->size), keyTime(st->birthTime), keyTime(st->modificationTime),
             QStringLiteral("%1:%2").arg(st->device).arg(st->inode));
}

std::optional<QString> uniqueIdentifierForFileAtPath(const QString& path)
{
    QString error;
    const std::optional<QString> key = identityKeyForFileAtPath(path, &error);
    if (!key) {
        qCInfo(lcApp).noquote() << QStringLiteral("Error getting file attributes: ") + error;
        return std::nullopt;
    }
    const QByteArray digest = QCryptographicHash::hash(key->toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(digest.toHex());
}

QString transcriptionPathForIdentifier(const QString& identifier, const DocumentManager& documents)
{
    const QString folder = documents.pathForFilename(DocumentManager::TranscriptionsFolder);
    if (folder.isNull())
        return {};
    return QStringLiteral("%1/%2").arg(folder, identifier);
}

} // namespace FileIdentity
