// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <optional>

// An error handed out by DocumentManager: a domain, a code and a sentence.
struct DocumentError
{
    QString domain;
    qint64 code = 0;
    QString localizedDescription;

    QString toString() const;
};

// Named files in the user's documents folder. The session keeps each audio
// file's transcript here, under "Transcriptions". Stateless: every operation
// goes to the file system.
//
// A name is a path relative to the documents folder. An empty name, or one
// that leads out of the folder or names the folder itself ("..", "."), counts
// as no name: otherwise a stray name could delete or overwrite something
// outside the store.
class DocumentManager
{
public:
    // Errors made here for bad arguments.
    static inline const QString ErrorDomain = QStringLiteral("com.yourapp.error");
    static constexpr qint64 InvalidArgumentCode = 400;
    // Errors passed on from the file system.
    static inline const QString FileSystemErrorDomain = QStringLiteral("com.kelmora.filesystem");
    // The folder under the documents folder that holds the transcripts.
    static inline const QString TranscriptionsFolder = QStringLiteral("Transcriptions");

    static DocumentManager& shared();

    // The user's documents folder.
    DocumentManager();
    // Any folder standing in for it (tests).
    explicit DocumentManager(const QString& baseDirectory);

    // The documents folder, created if missing; a null string (and a log
    // line) when it cannot be found or made.
    QString documentsDirectory() const;
    // The documents folder with the name appended; null when there is no folder.
    QString pathForFilename(const QString& name) const;
    // A lesson's file beside its transcript, "Transcriptions/<identity><extension>";
    // null for an identity that could name a place outside that folder.
    static QString lessonFileName(const QString& identity, const QString& extension);

    // Writes the data in one step (a temporary file renamed over the target).
    bool saveData(const std::optional<QByteArray>& data, const QString& name,
                  DocumentError* error = nullptr) const;
    std::optional<QByteArray> loadDataWithName(const QString& name,
                                               DocumentError* error = nullptr) const;
    bool fileExistsWithName(const QString& name) const;
    // A missing file counts as deleted. A folder is removed with its contents.
    bool deleteFileWithName(const QString& name, DocumentError* error = nullptr) const;
    // The names in the documents folder (not recursive, hidden ones included),
    // sorted.
    QStringList listFiles(DocumentError* error = nullptr) const;
    // True only when the folder was already there: a folder made now reports
    // false, and so does a failure. Callers read the result as "existed".
    bool createDirectory(const QString& name, DocumentError* error = nullptr) const;
    // "type" (regular, directory, symbolicLink, other), "size", "creationDate"
    // (absent when the file system keeps none), "modificationDate",
    // "posixPermissions", "ownerId", "groupId", "systemNumber" (device),
    // "systemFileNumber" (inode). A symbolic link is described, not followed.
    QVariantMap attributesOfFile(const QString& name, DocumentError* error = nullptr) const;

private:
    // The full path for a valid name; otherwise sets `error` to `message`.
    std::optional<QString> checkedPath(const QString& name, const QString& message,
                                       DocumentError* error) const;

    QString m_baseDirectory; // empty: the user's documents folder
};
