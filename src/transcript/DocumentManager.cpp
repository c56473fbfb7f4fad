// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/DocumentManager.h"

#include "common/FileStat.h"
#include "common/Log.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <filesystem>
#include <system_error>

namespace {

void setError(DocumentError* error, const QString& domain, qint64 code, const QString& description)
{
    if (error)
        *error = DocumentError{domain, code, description};
}

void setInvalid(DocumentError* error, const QString& description)
{
    setError(error, DocumentManager::ErrorDomain, DocumentManager::InvalidArgumentCode,
             description);
}

void setFileSystemError(DocumentError* error, qint64 code, const QString& description)
{
    setError(error, DocumentManager::FileSystemErrorDomain, code, description);
}

std::filesystem::path fsPath(const QString& path)
{
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QString fromErrorCode(const QString& path, const std::error_code& ec)
{
    return QStringLiteral("%1: %2").arg(path, QString::fromLocal8Bit(ec.message().c_str()));
}

QString typeName(FileStat::Type type)
{
    switch (type) {
    case FileStat::Type::Regular:
        return QStringLiteral("regular");
    case FileStat::Type::Directory:
        return QStringLiteral("directory");
    case FileStat::Type::SymbolicLink:
        return QStringLiteral("symbolicLink");
    case FileStat::Type::Other:
        break;
    }
    return QStringLiteral("other");
}

} // namespace

QString DocumentError::toString() const
{
    return QStringLiteral("Error Domain=%1 Code=%2 \"%3\"")
        .arg(domain)
        .arg(code)
        .arg(localizedDescription);
}

DocumentManager& DocumentManager::shared()
{
    static DocumentManager instance;
    return instance;
}

DocumentManager::DocumentManager() = default;

DocumentManager::DocumentManager(const QString& baseDirectory) : m_baseDirectory(baseDirectory) {}

QString DocumentManager::documentsDirectory() const
{
    const QString base = m_baseDirectory.isEmpty()
                             ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                             : m_baseDirectory;
    if (base.isEmpty()) {
        qCInfo(lcTranscript, "Error getting documents directory URL: %s",
               "no documents folder is configured");
        return {};
    }
    const QString path = QDir::cleanPath(QDir(base).absolutePath());
    std::error_code ec;
    std::filesystem::create_directories(fsPath(path), ec);
    if (ec || !QFileInfo(path).isDir()) {
        const QString reason =
            ec ? fromErrorCode(path, ec) : QStringLiteral("%1: Not a directory").arg(path);
        qCInfo(lcTranscript).noquote()
            << QStringLiteral("Error getting documents directory URL: ") + reason;
        return {};
    }
    return path;
}

QString DocumentManager::pathForFilename(const QString& name) const
{
    const QString base = documentsDirectory();
    if (base.isNull())
        return {};
    return QDir::cleanPath(base + u'/' + name);
}

std::optional<QString> DocumentManager::checkedPath(const QString& name, const QString& message,
                                                    DocumentError* error) const
{
    if (name.isEmpty()) {
        setInvalid(error, message);
        return std::nullopt;
    }
    const QString base = documentsDirectory();
    if (base.isNull()) {
        setFileSystemError(error, 0, QStringLiteral("The documents folder is not available"));
        return std::nullopt;
    }
    const QString path = QDir::cleanPath(base + u'/' + name);
    const QString inside = base.endsWith(u'/') ? base : base + u'/';
    if (!path.startsWith(inside) || path.size() == inside.size()) {
        setInvalid(error, message);
        return std::nullopt;
    }
    return path;
}

bool DocumentManager::saveData(const std::optional<QByteArray>& data, const QString& name,
                               DocumentError* error) const
{
    const QString invalid = QStringLiteral("Invalid data or filename");
    if (!data) {
        setInvalid(error, invalid);
        return false;
    }
    const std::optional<QString> path = checkedPath(name, invalid, error);
    if (!path)
        return false;
    QSaveFile file(*path);
    if (!file.open(QIODevice::WriteOnly) || file.write(*data) != data->size() || !file.commit()) {
        setFileSystemError(error, file.error(),
                           QStringLiteral("%1: %2").arg(*path, file.errorString()));
        file.cancelWriting();
        return false;
    }
    return true;
}

std::optional<QByteArray> DocumentManager::loadDataWithName(const QString& name,
                                                            DocumentError* error) const
{
    const std::optional<QString> path =
        checkedPath(name, QStringLiteral("Invalid filename"), error);
    if (!path)
        return std::nullopt;
    QFile file(*path);
    QByteArray data;
    if (file.open(QIODevice::ReadOnly))
        data = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        setFileSystemError(error, file.error(),
                           QStringLiteral("%1: %2").arg(*path, file.errorString()));
        return std::nullopt;
    }
    return data;
}

bool DocumentManager::fileExistsWithName(const QString& name) const
{
    const std::optional<QString> path = checkedPath(name, QString(), nullptr);
    return path && QFileInfo::exists(*path);
}

bool DocumentManager::deleteFileWithName(const QString& name, DocumentError* error) const
{
    const std::optional<QString> path =
        checkedPath(name, QStringLiteral("Invalid filename"), error);
    if (!path)
        return false;
    if (!statFile(*path, false))
        return true; // nothing there: already deleted
    std::error_code ec;
    std::filesystem::remove_all(fsPath(*path), ec);
    if (ec) {
        setFileSystemError(error, ec.value(), fromErrorCode(*path, ec));
        return false;
    }
    return true;
}

QStringList DocumentManager::listFiles(DocumentError* error) const
{
    const QString base = documentsDirectory();
    if (base.isNull()) {
        setFileSystemError(error, 0, QStringLiteral("The documents folder is not available"));
        return {};
    }
    std::error_code ec;
    QStringList names;
    for (auto it = std::filesystem::directory_iterator(fsPath(base), ec);
         !ec && it != std::filesystem::directory_iterator(); it.increment(ec)) {
        names.append(QFile::decodeName(QByteArray::fromStdString(it->path().filename().string())));
    }
    if (ec) {
        setFileSystemError(error, ec.value(), fromErrorCode(base, ec));
        return {};
    }
    names.sort();
    return names;
}

bool DocumentManager::createDirectory(const QString& name, DocumentError* error) const
{
    // The failure line reads the error back, so there must be one to fill.
    DocumentError local;
    DocumentError* out = error ? error : &local;

    const std::optional<QString> path = checkedPath(name, QStringLiteral("Invalid filename"), out);
    if (path && statFile(*path, false))
        return true;
    std::error_code ec;
    if (path) {
        std::filesystem::create_directories(fsPath(*path), ec);
        if (ec)
            setFileSystemError(out, ec.value(), fromErrorCode(*path, ec));
    }
    if (path && !ec)
        qCInfo(lcTranscript).noquote() << QStringLiteral("Successfully created directory:") + name;
    else
        qCInfo(lcTranscript).noquote()
            << QStringLiteral("Failed to create directory: ") + out->toString();
    // Deliberately false for a folder made now: callers read "already existed".
    return false;
}

QVariantMap DocumentManager::attributesOfFile(const QString& name, DocumentError* error) const
{
    const std::optional<QString> path =
        checkedPath(name, QStringLiteral("Invalid filename"), error);
    if (!path)
        return {};
    QString reason;
    const std::optional<FileStat> st = statFile(*path, false, &reason);
    if (!st) {
        setFileSystemError(error, 0, reason);
        return {};
    }
    QVariantMap attributes{
        {QStringLiteral("type"), typeName(st->type)},
        {QStringLiteral("size"), st->size},
        {QStringLiteral("modificationDate"), st->modificationTime},
        {QStringLiteral("posixPermissions"), st->permissions},
        {QStringLiteral("ownerId"), st->ownerId},
        {QStringLiteral("groupId"), st->groupId},
        {QStringLiteral("systemNumber"), st->device},
        {QStringLiteral("systemFileNumber"), st->inode},
    };
    if (st->birthTime)
        attributes.insert(QStringLiteral("creationDate"), *st->birthTime);
    return attributes;
}

QString DocumentManager::lessonFileName(const QString& identity, const QString& extension)
{
    if (identity.isEmpty() || identity.startsWith(u'.') || identity.contains(u'/') ||
        identity.contains(u'\\'))
        return {};
    return TranscriptionsFolder + u'/' + identity + extension;
}
