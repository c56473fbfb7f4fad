// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/BookmarkStore.h"

#include "common/Log.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>

BookmarkStore::BookmarkStore(Defaults& defaults) : m_defaults(defaults) {}

QByteArray BookmarkStore::bookmarkDataForDirectory(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath()).toUtf8();
}

std::optional<QString> BookmarkStore::resolveBookmarkData(const QByteArray& data, bool* isStale,
                                                          QString* error)
{
    const auto fail = [error](const QString& reason) -> std::optional<QString> {
        if (error)
            *error = reason;
        return std::nullopt;
    };
    if (isStale)
        *isStale = false;

    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString path = decoder.decode(data);
    if (decoder.hasError() || path.isEmpty() || !QDir::isAbsolutePath(path) ||
        path.contains(QChar(0)))
        return fail(QStringLiteral("The bookmark data is not a folder path"));

    const QFileInfo folder(path);
    if (!folder.exists()) {
        if (isStale)
            *isStale = true;
        return path;
    }
    if (!folder.isDir())
        return fail(QStringLiteral("%1: Not a directory").arg(path));
    if (!folder.isReadable())
        return fail(QStringLiteral("%1: Permission denied").arg(path));
    return path;
}

bool BookmarkStore::startAccessingDirectory(const QString& path)
{
    const QFileInfo folder(path);
    return !path.isEmpty() && folder.isDir() && folder.isReadable();
}

void BookmarkStore::saveBookmarkData(const std::optional<QByteArray>& data, const QString& key)
{
    if (!data) {
        qCInfo(lcApp).noquote() << QStringLiteral("No bookmark data to save for key: ") + key;
        return;
    }
    m_defaults.setObject(QString::fromLatin1(data->toBase64()), key);
    m_defaults.synchronize();
    qCInfo(lcApp).noquote() << QStringLiteral("Saved bookmark for key: ") + key;
}

std::optional<QByteArray> BookmarkStore::loadBookmarkDataForKey(const QString& key) const
{
    const QVariant stored = m_defaults.objectForKey(key);
    if (!stored.isValid())
        return std::nullopt;
    const QByteArray::FromBase64Result decoded = QByteArray::fromBase64Encoding(
        stored.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return decoded.decoded;
}

void BookmarkStore::restoreLastAudioFile()
{
    const QString bookmarkKey = QString::fromLatin1(PreferenceKeys::LastDirectoryBookmark);
    const QString fileKey = QString::fromLatin1(PreferenceKeys::LastAudioFileName);
    if (!m_defaults.objectForKey(bookmarkKey).isValid() ||
        !m_defaults.objectForKey(fileKey).isValid())
        return;

    // Text that is not base64 fails like a bookmark that does not resolve, so
    // that a damaged entry is cleared rather than kept for ever.
    const std::optional<QByteArray> bookmark = loadBookmarkDataForKey(bookmarkKey);
    bool stale = false;
    QString error = QStringLiteral("The bookmark data is not valid base64 text");
    const std::optional<QString> folder =
        bookmark ? resolveBookmarkData(*bookmark, &stale, &error) : std::nullopt;
    if (!folder || stale) {
        if (stale)
            error = QStringLiteral("%1: the folder no longer exists").arg(*folder);
        qCInfo(lcApp).noquote() << QStringLiteral("Error resolving directory bookmark: ") + error;
        m_defaults.removeObject(bookmarkKey);
        m_defaults.removeObject(fileKey);
        m_defaults.synchronize();
        return;
    }
    // Access is only checked; the file is not reopened.
    startAccessingDirectory(*folder);
}
