// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

class DocumentManager;

// Each audio file's transcript is stored under a name derived from the file:
// the SHA-256 of its path, size, creation and modification times and its
// device and inode. Moving, renaming, editing or replacing the file changes
// the name, and the old transcript is then no longer found; that is intended.
namespace FileIdentity {

// The text that is digested: "path_size_created_modified_device:inode", with
// the path as given (not made absolute), the size in bytes, both times as
// ISO-8601 UTC with whole seconds ("2026-11-22T09:14:03Z", "(null)" when the
// file system keeps no creation time) and device and inode in decimal. A
// symbolic link is followed: the identity is that of the audio it leads to.
// Nothing when the file cannot be examined; `error` then says why.
std::optional<QString> identityKeyForFileAtPath(const QString& path, QString* error = nullptr);

// 64 lower-case hexadecimal digits. Nothing (and the log line "Error getting
// file attributes: ...") when the file cannot be examined.
std::optional<QString> uniqueIdentifierForFileAtPath(const QString& path);

// Where the transcript for an identity is kept: the "Transcriptions" folder
// of the documents folder, then the identity, no extension. A null string
// when there is no documents folder.
QString transcriptionPathForIdentifier(const QString& identifier, const DocumentManager& documents);

// A time as it enters the key.
QString keyTime(const std::optional<QDateTime>& time);

} // namespace FileIdentity
