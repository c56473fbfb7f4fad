// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/FileStat.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace {

QDateTime fromTimestamp(qint64 seconds, quint32 nanoseconds)
{
    return QDateTime::fromMSecsSinceEpoch(seconds * 1000 + nanoseconds / 1000000, Qt::UTC);
}

FileStat::Type typeOf(unsigned mode)
{
    if (S_ISREG(mode))
        return FileStat::Type::Regular;
    if (S_ISDIR(mode))
        return FileStat::Type::Directory;
    if (S_ISLNK(mode))
        return FileStat::Type::SymbolicLink;
    return FileStat::Type::Other;
}

} // namespace

std::optional<FileStat> statFile(const QString& path, bool followSymlinks, QString* error)
{
    const QByteArray name = QFile::encodeName(path);
    const int flags = followSymlinks ? 0 : AT_SYMLINK_NOFOLLOW;
    struct statx sx = {};
    int result = path.isEmpty() ? -1
                                : statx(AT_FDCWD, name.constData(), flags,
                                        STATX_BASIC_STATS | STATX_BTIME, &sx);
    int code = path.isEmpty() ? ENOENT : errno;
    if (result != 0 && code == ENOSYS) {
        // Kernels or sandboxes without statx: everything but the birth time.
        struct stat plain = {};
        result = fstatat(AT_FDCWD, name.constData(), &plain, flags);
        code = errno;
        if (result == 0) {
            sx.stx_mask = STATX_BASIC_STATS;
            sx.stx_mode = static_cast<quint16>(plain.st_mode);
            sx.stx_size = static_cast<quint64>(plain.st_size);
            sx.stx_mtime.tv_sec = plain.st_mtim.tv_sec;
            sx.stx_mtime.tv_nsec = static_cast<quint32>(plain.st_mtim.tv_nsec);
            sx.stx_dev_major = major(plain.st_dev);
            sx.stx_dev_minor = minor(plain.st_dev);
            sx.stx_ino = plain.st_ino;
            sx.stx_uid = plain.st_uid;
            sx.stx_gid = plain.st_gid;
        }
    }
    if (result != 0) {
        if (error)
            *error =
                QStringLiteral("%1: %2").arg(path, QString::fromLocal8Bit(std::strerror(code)));
        return std::nullopt;
    }

    FileStat st;
    st.type = typeOf(sx.stx_mode);
    st.size = static_cast<qint64>(sx.stx_size);
    if (sx.stx_mask & STATX_BTIME)
        st.birthTime = fromTimestamp(sx.stx_btime.tv_sec, sx.stx_btime.tv_nsec);
    st.modificationTime = fromTimestamp(sx.stx_mtime.tv_sec, sx.stx_mtime.tv_nsec);
    st.device = makedev(sx.stx_dev_major, sx.stx_dev_minor);
    st.inode = sx.stx_ino;
    st.permissions = sx.stx_mode & 07777u;
    st.ownerId = sx.stx_uid;
    st.groupId = sx.stx_gid;
    return st;
}
