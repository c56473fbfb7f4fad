// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/DurableWrite.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

QString reason(int code)
{
    return QString::fromLocal8Bit(std::strerror(code));
}

// A file descriptor closed on every way out; close() itself is checked by
// the caller where it matters.
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return m_fd; }
    int release() { return std::exchange(m_fd, -1); }

private:
    int m_fd;
};

bool writeAll(int fd, const QByteArray& bytes)
{
    const char* data = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, data, static_cast<size_t>(left));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            if (n == 0)
                errno = EIO;
            return false;
        }
        data += n;
        left -= n;
    }
    return true;
}

} // namespace

bool writeFileDurably(const QString& path, const QByteArray& bytes, QString* error)
{
    const auto fail = [&](const QString& what, int code) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(what, reason(code));
        return false;
    };
    const QByteArray target = QFile::encodeName(path);
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());

    // A name of its own, so two writers of the same target never share one.
    QByteArray temp;
    int fd = -1;
    for (int attempt = 0; attempt < 16 && fd < 0; ++attempt) {
        temp = target + ".temp-" + QByteArray::number(QRandomGenerator::global()->generate(), 16);
        fd = ::open(temp.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (fd < 0 && errno != EEXIST)
            break;
    }
    if (fd < 0)
        return fail(path, errno);
    Descriptor file(fd);
    const auto failAndRemove = [&](int code) {
        ::unlink(temp.constData());
        return fail(path, code);
    };

    // A file that is replaced keeps who may read it.
    struct stat old
    {
    };
    if (::stat(target.constData(), &old) == 0 && S_ISREG(old.st_mode))
        ::fchmod(file.get(), old.st_mode & 07777);

    if (!writeAll(file.get(), bytes))
        return failAndRemove(errno);
    // A full disk or a quota often shows only here, at the write-back.
    if (::fsync(file.get()) != 0)
        return failAndRemove(errno);
    if (::close(file.release()) != 0)
        return failAndRemove(errno);
    if (::rename(temp.constData(), target.constData()) != 0)
        return failAndRemove(errno);

    // The rename is durable only once the folder is.
    return syncFolder(QString::fromLocal8Bit(folder), error);
}

bool syncFolder(const QString& folder, QString* error)
{
    const int dirFd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dirFd < 0) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(folder, reason(errno));
        return false;
    }
    Descriptor dir(dirFd);
    int result = 0;
    do {
        result = ::fsync(dir.get());
    } while (result != 0 && errno == EINTR);
    // Some file systems cannot sync a folder; the data is already synced there.
    if (result != 0 && errno != EINVAL) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(folder, reason(errno));
        return false;
    }
    return true;
}
