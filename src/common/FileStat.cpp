// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/FileStat.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

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

std::optional<QByteArray> readRegularFile(const QString& path, qint64 maxBytes, QString* error,
                                          bool* missing)
{
    const auto fail = [&](const QString& reason) -> std::optional<QByteArray> {
        if (error)
            *error = QStringLiteral("%1: %2").arg(path, reason);
        return std::nullopt;
    };
    if (missing)
        *missing = false;
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        if (missing)
            *missing = errno == ENOENT;
        return fail(QString::fromLocal8Bit(std::strerror(errno)));
    }
    struct Closer
    {
        int fd;
        ~Closer() { ::close(fd); }
    } closer{fd};
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0)
        return fail(QString::fromLocal8Bit(std::strerror(errno)));
    if (!S_ISREG(info.st_mode))
        return fail(QStringLiteral("not a regular file"));
    if (info.st_size > maxBytes)
        return fail(QStringLiteral("larger than %1 bytes").arg(maxBytes));
    // One byte more than allowed is asked for, to notice a file that grew.
    QByteArray bytes(qsizetype(info.st_size) + 1, Qt::Uninitialized);
    qsizetype got = 0;
    while (got < bytes.size()) {
        const ssize_t n = ::read(fd, bytes.data() + got, size_t(bytes.size() - got));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return fail(QString::fromLocal8Bit(std::strerror(errno)));
        if (n == 0)
            break;
        got += n;
        if (got > maxBytes)
            return fail(QStringLiteral("larger than %1 bytes").arg(maxBytes));
        if (got == bytes.size())
            bytes.resize(qMin<qint64>(maxBytes + 1, bytes.size() * 2));
    }
    bytes.truncate(got);
    return bytes;
}
