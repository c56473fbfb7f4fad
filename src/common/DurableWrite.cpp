// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/DurableWrite.h"

#include "common/FileStat.h"

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

// The bytes in a new temporary file beside the target, written and synced;
// its name in `temp`. A target that exists lends it its permissions.
bool writeTempBeside(const QByteArray& target, const QByteArray& bytes, QByteArray* temp, int* code)
{
    int fd = -1;
    // A name of its own, so two writers of the same target never share one.
    for (int attempt = 0; attempt < 16 && fd < 0; ++attempt) {
        *temp = target + ".temp-" + QByteArray::number(QRandomGenerator::global()->generate(), 16);
        fd = ::open(temp->constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (fd < 0 && errno != EEXIST)
            break;
    }
    if (fd < 0) {
        *code = errno;
        return false;
    }
    Descriptor file(fd);
    // A file that is replaced keeps who may read it.
    struct stat old
    {
    };
    if (::stat(target.constData(), &old) == 0 && S_ISREG(old.st_mode))
        ::fchmod(file.get(), old.st_mode & 07777);

    // A full disk or a quota often shows only at the fsync, at the write-back.
    if (!writeAll(file.get(), bytes) || ::fsync(file.get()) != 0 || ::close(file.release()) != 0) {
        *code = errno;
        ::unlink(temp->constData());
        return false;
    }
    return true;
}

void failure(QString* error, const QString& what, int code)
{
    if (error)
        *error = QStringLiteral("%1: %2").arg(what, reason(code));
}

} // namespace

bool writeFileDurably(const QString& path, const QByteArray& bytes, QString* error)
{
    const QByteArray target = QFile::encodeName(path);
    QByteArray temp;
    int code = 0;
    if (!writeTempBeside(target, bytes, &temp, &code)) {
        failure(error, path, code);
        return false;
    }
    if (::rename(temp.constData(), target.constData()) != 0) {
        code = errno;
        ::unlink(temp.constData());
        failure(error, path, code);
        return false;
    }
    // The rename is durable only once the folder is.
    return syncFolder(QFileInfo(path).absolutePath(), error);
}

CopyOutcome copyFileDurably(const QString& from, const QString& to, qint64 maxBytes, QString* error)
{
    bool missing = false;
    const std::optional<QByteArray> bytes = readRegularFile(from, maxBytes, error, &missing);
    if (!bytes)
        return missing ? CopyOutcome::NoSource : CopyOutcome::Failed;
    const QByteArray target = QFile::encodeName(to);
    QByteArray temp;
    int code = 0;
    if (!writeTempBeside(target, *bytes, &temp, &code)) {
        failure(error, to, code);
        return CopyOutcome::Failed;
    }
    // link() fails when the target exists, where rename() would replace it.
    const int linked = ::link(temp.constData(), target.constData());
    code = errno;
    ::unlink(temp.constData());
    if (linked != 0) {
        if (code == EEXIST)
            return CopyOutcome::TargetExists;
        failure(error, to, code);
        return CopyOutcome::Failed;
    }
    return syncFolder(QFileInfo(to).absolutePath(), error) ? CopyOutcome::Copied
                                                           : CopyOutcome::Failed;
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
