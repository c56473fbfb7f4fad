// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// Replaces a file's content so that it is either the old content or the new
// one, even after a crash or a power cut, and says truthfully whether the new
// content reached the disk: the bytes go to a temporary file beside the
// target, every write, the fsync and the close are checked, the temporary
// file is renamed over the target and the folder is synced after the rename.
// On failure the temporary file is removed, the target is left as it was and
// `error` gets "path: reason".
bool writeFileDurably(const QString& path, const QByteArray& bytes, QString* error = nullptr);

enum class CopyOutcome
{
    Copied,
    NoSource,     // there is no file at `from`
    TargetExists, // `to` was there already and is left as it was
    Failed,       // `error` says why; `to` was not made
};

// Copies a regular file of at most `maxBytes` to a new file as durably as
// writeFileDurably writes, but never replaces a file: the new one appears at
// `to` whole, or not at all.
CopyOutcome copyFileDurably(const QString& from, const QString& to, qint64 maxBytes,
                            QString* error = nullptr);

// fsync of a folder, so that a rename or a new file in it is on the disk. A
// file system that cannot sync a folder counts as done. False (and `error`)
// when the folder cannot be opened or synced.
bool syncFolder(const QString& folder, QString* error = nullptr);
