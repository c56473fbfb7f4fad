// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>

// What the file system records about one file, read with a single statx(2).
struct FileStat
{
    enum class Type
    {
        Regular,
        Directory,
        SymbolicLink,
        Other
    };

    Type type = Type::Other;
    qint64 size = 0;
    // Absent when the file system keeps no creation time.
    std::optional<QDateTime> birthTime;
    QDateTime modificationTime;
    quint64 device = 0; // as st_dev
    quint64 inode = 0;
    uint permissions = 0; // the mode's permission bits
    uint ownerId = 0;
    uint groupId = 0;
};

// Reads a file's attributes; a symbolic link is followed when asked. On failure
// returns nothing and puts the reason ("path: No such file or directory") in
// `error` if given.
std::optional<FileStat> statFile(const QString& path, bool followSymlinks,
                                 QString* error = nullptr);

// The whole content of a regular file of at most `maxBytes`. The file is
// opened without waiting and examined before it is read, so a FIFO or a
// device is refused, never waited on. Nothing on failure, with the reason in
// `error`; `missing` says whether the reason is that there is no such file.
std::optional<QByteArray> readRegularFile(const QString& path, qint64 maxBytes,
                                          QString* error = nullptr, bool* missing = nullptr);
