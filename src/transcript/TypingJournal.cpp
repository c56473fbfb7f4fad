// SPDX-License-Identifier: GPL-3.0-or-later
#include "TypingJournal.h"

#include "JournalFormat.h"
#include "JournalSyncer.h"
#include "common/DurableWrite.h"
#include "common/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A journal this large is damage or not ours; a lesson's typing never is.
constexpr qint64 kMaxFileBytes = 256LL * 1024 * 1024;

QByteArray encodedPath(const QString& path)
{
    return QFile::encodeName(path);
}

QString errorText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

// The whole of `size` bytes, through short writes and interrupted calls.
bool writeAll(int fd, const char* data, qsizetype size)
{
    while (size > 0) {
        const ssize_t n = ::write(fd, data, size_t(size));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        if (n == 0) {
            errno = EIO;
            return false;
        }
        data += n;
        size -= n;
    }
    return true;
}

bool readAll(int fd, qint64 size, QByteArray& out)
{
    out.resize(size);
    qint64 at = 0;
    while (at < size) {
        const ssize_t n = ::pread(fd, out.data() + at, size_t(size - at), at);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        if (n == 0)
            break; // shrank meanwhile: what was read is what there is
        at += n;
    }
    out.truncate(at);
    return true;
}

template <typename Call>
int retryInterrupted(Call call)
{
    int result;
    do {
        result = call();
    } while (result < 0 && errno == EINTR);
    return result;
}

// The records the file holds, dropped ones left out, from its bytes.
TypingJournal::Replay replayBytes(const QByteArray& bytes)
{
    TypingJournal::Replay replay;
    switch (JournalFormat::checkHeader(bytes)) {
    case JournalFormat::HeaderCheck::Foreign:
        replay.status = TypingJournal::Replay::Status::Foreign;
        replay.error = QStringLiteral("not a Kelmora typing journal");
        return replay;
    case JournalFormat::HeaderCheck::Empty:
        return replay;
    case JournalFormat::HeaderCheck::Ours:
        break;
    }
    JournalFormat::Parsed parsed = JournalFormat::parse(bytes);
    replay.ignoredBytes = bytes.size() - parsed.goodBytes;
    // Sequence numbers increase through the file, so a drop is always a
    // prefix of the records kept so far.
    qsizetype firstLive = 0;
    for (JournalFormat::Record& r : parsed.records) {
        replay.lastSequence = r.sequence;
        if (r.kind == JournalFormat::Kind::RowText) {
            replay.records.append({r.sequence, r.row, std::move(r.text)});
        } else {
            while (firstLive < replay.records.size() &&
                   replay.records[firstLive].sequence <= r.droppedThrough)
                ++firstLive;
        }
    }
    replay.records.remove(0, firstLive);
    return replay;
}

} // namespace

QString TypingJournal::folderPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/journal");
}

QString TypingJournal::fileNameFor(const QString& identity)
{
    if (identity.isEmpty() || identity.startsWith(u'.') || identity.contains(u'/') ||
        identity.contains(u'\\'))
        return {};
    return identity + QStringLiteral(".journal");
}

TypingJournal::Replay TypingJournal::replay(const QString& path)
{
    Replay replay;
    const int fd = ::open(encodedPath(path).constData(),
                          O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        if (errno != ENOENT) {
            replay.status = Replay::Status::Unreadable;
            replay.error = errorText(errno);
        }
        return replay;
    }
    struct stat info{};
    QByteArray bytes;
    if (::fstat(fd, &info) != 0 || !readAll(fd, info.st_size, bytes)) {
        replay.status = Replay::Status::Unreadable;
        replay.error = errorText(errno);
    } else if (!S_ISREG(info.st_mode) || info.st_size > kMaxFileBytes) {
        replay.status = Replay::Status::Unreadable;
        replay.error = S_ISREG(info.st_mode) ? QStringLiteral("too large for a typing journal")
                                             : QStringLiteral("not a regular file");
    }
    ::close(fd);
    return replay.status == Replay::Status::Ok ? replayBytes(bytes) : replay;
}

TypingJournal::Applied TypingJournal::apply(const QList<Record>& records, QStringList& rows,
                                            quint64 after)
{
    Applied result;
    for (const Record& r : records) {
        if (r.sequence <= after)
            continue;
        if (r.row >= rows.size()) {
            ++result.pastEnd;
            continue;
        }
        rows[r.row] = r.text;
        ++result.applied;
    }
    return result;
}

TypingJournal::TypingJournal(const QString& path, Now now, Syncing syncing)
    : m_path(path), m_now(now ? std::move(now) : Now(&std::chrono::steady_clock::now))
{
    if (syncing == Syncing::OnWriterThread)
        m_syncer = std::make_unique<JournalSyncer>();
    open();
}

TypingJournal::~TypingJournal()
{
    collectSyncError();
    if (m_state == State::Writing && m_unsynced)
        syncNow(true);
    closeFile();
}

void TypingJournal::open()
{
    const QByteArray name = encodedPath(m_path);
    bool readOnly = false;
    m_fd = ::open(name.constData(), O_RDWR | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (m_fd < 0 && (errno == EROFS || errno == EACCES || errno == EPERM)) {
        readOnly = true;
        m_fd = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    }
    if (m_fd < 0) {
        if (errno == ENOENT)
            return; // made at the first append
        m_recovered.status = Replay::Status::Unreadable;
        m_recovered.error = errorText(errno);
        fail(State::Refused, QStringLiteral("cannot be opened; left as it is"), m_recovered.error);
        return;
    }

    struct stat info{};
    QByteArray bytes;
    QString unreadable;
    if (::fstat(m_fd, &info) != 0)
        unreadable = errorText(errno);
    else if (!S_ISREG(info.st_mode))
        unreadable = QStringLiteral("not a regular file");
    else if (info.st_size > kMaxFileBytes)
        unreadable = QStringLiteral("too large for a typing journal");
    else if (!readAll(m_fd, info.st_size, bytes))
        unreadable = errorText(errno);
    if (!unreadable.isEmpty()) {
        m_recovered.status = Replay::Status::Unreadable;
        m_recovered.error = unreadable;
        closeFile();
        fail(State::Refused, QStringLiteral("cannot be read; left as it is"), unreadable);
        return;
    }
    m_recovered = replayBytes(bytes);
    if (m_recovered.status != Replay::Status::Ok) {
        closeFile();
        fail(State::Refused, QStringLiteral("is not a Kelmora typing journal; left as it is"),
             m_recovered.error);
        return;
    }

    for (const Record& r : std::as_const(m_recovered.records))
        m_rows[r.row] = {r.sequence, r.text};
    m_lastSequence = m_recovered.lastSequence;
    m_size = bytes.size();
    if (m_recovered.ignoredBytes > 0)
        qCInfo(lcTranscript).noquote()
            << QStringLiteral("Typing journal %1: %2 bytes of a torn or damaged end ignored")
                   .arg(m_path)
                   .arg(m_recovered.ignoredBytes);

    if (readOnly) {
        closeFile();
        fail(State::Failing, QStringLiteral("cannot be written"), EROFS);
        return;
    }
    if (JournalFormat::checkHeader(bytes) == JournalFormat::HeaderCheck::Empty) {
        // Cut while it was being made: start it again.
        if (::ftruncate(m_fd, 0) != 0)
            fail(State::Failing, QStringLiteral("cannot be written"), errno);
        m_size = 0;
        return;
    }
    // Records appended after a damaged end would never be read back.
    if (m_recovered.ignoredBytes > 0 || m_size > kCompactionBytes)
        rewrite();
}

bool TypingJournal::create()
{
    const QString folder = QFileInfo(m_path).absolutePath();
    QDir().mkpath(folder);
    m_fd = ::open(encodedPath(m_path).constData(),
                  O_RDWR | O_APPEND | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (m_fd < 0) {
        fail(errno == EEXIST ? State::Refused : State::Failing,
             QStringLiteral("cannot be created"), errno);
        return false;
    }
    m_size = 0;
    m_folderUnsynced = true;
    return true;
}

quint64 TypingJournal::append(int row, const QString& text)
{
    if (row < 0) {
        qCWarning(lcTranscript, "Typing journal: a record for row %d is refused", row);
        return 0;
    }
    const quint64 sequence = ++m_lastSequence;
    m_rows[row] = {sequence, text};
    if (!collectSyncError())
        return sequence;
    const QByteArray utf8 = text.toUtf8();
    if (utf8.size() > JournalFormat::kMaxTextBytes) {
        qCWarning(lcTranscript, "Typing journal: row %d is too long to be journaled", row);
        return sequence;
    }
    if (m_fd < 0 && !create())
        return sequence;
    QByteArray bytes = JournalFormat::rowRecord(sequence, row, utf8);
    if (m_size == 0)
        bytes.prepend(JournalFormat::header());
    appendBytes(bytes);
    return sequence;
}

bool TypingJournal::appendBytes(const QByteArray& bytes)
{
    if (!writeAll(m_fd, bytes.constData(), bytes.size())) {
        const int error = errno;
        // Cut what reached the file of this record, so that the next good
        // record does not follow a torn one; the rewrite does it otherwise.
        [[maybe_unused]] const int cut = ::ftruncate(m_fd, m_size);
        fail(State::Failing, QStringLiteral("a record could not be written"), error);
        return false;
    }
    m_size += bytes.size();
    m_unsynced = true;
    return true;
}

bool TypingJournal::syncIfDue()
{
    if (!collectSyncError() || !m_unsynced)
        return false;
    if (m_lastSync && m_now() - *m_lastSync < kSyncInterval)
        return false;
    return syncNow(false);
}

bool TypingJournal::sync()
{
    collectSyncError();
    switch (m_state) {
    case State::Refused:
        return false;
    case State::Failing:
        return rewrite();
    case State::Writing:
        break;
    }
    if (m_unsynced && !syncNow(false))
        return false;
    return m_size <= kCompactionBytes || rewrite();
}

bool TypingJournal::collectSyncError()
{
    if (m_syncer) {
        if (const int error = m_syncer->takeError())
            fail(State::Failing, QStringLiteral("could not be synced"), error);
    }
    return m_state == State::Writing;
}

bool TypingJournal::syncNow(bool wait)
{
    if (m_syncer && !wait) {
        m_syncer->request(m_fd);
    } else if (retryInterrupted([&] { return ::fdatasync(m_fd); }) != 0) {
        fail(State::Failing, QStringLiteral("could not be synced"), errno);
        return false;
    }
    if (m_folderUnsynced && !syncFolder(QFileInfo(m_path).absolutePath())) {
        fail(State::Failing, QStringLiteral("its folder could not be synced"), errno);
        return false;
    }
    m_folderUnsynced = false;
    m_unsynced = false;
    m_lastSync = m_now();
    return true;
}

bool TypingJournal::dropThrough(quint64 sequence)
{
    collectSyncError();
    sequence = std::min(sequence, m_lastSequence);
    const qsizetype before = m_rows.size();
    m_rows.removeIf([&](const auto& entry) { return entry.value().sequence <= sequence; });
    if (m_rows.size() == before)
        return m_state == State::Writing;
    if (m_state != State::Writing)
        return false;
    if (m_fd >= 0 &&
        !appendBytes(JournalFormat::droppedThroughRecord(++m_lastSequence, sequence)))
        return false;
    return m_size <= kCompactionBytes || rewrite();
}

bool TypingJournal::compact()
{
    return m_state != State::Refused && rewrite();
}

bool TypingJournal::rewrite()
{
    if (m_state == State::Refused)
        return false;
    QList<std::pair<quint64, int>> order;
    order.reserve(m_rows.size());
    for (auto it = m_rows.cbegin(); it != m_rows.cend(); ++it)
        order.append({it->sequence, it.key()});
    std::sort(order.begin(), order.end());

    QByteArray bytes = JournalFormat::header();
    quint64 droppedThrough = 0;
    for (const auto& [sequence, row] : std::as_const(order)) {
        const QByteArray utf8 = m_rows[row].text.toUtf8();
        if (utf8.size() <= JournalFormat::kMaxTextBytes)
            bytes += JournalFormat::rowRecord(sequence, row, utf8);
    }
    if (!order.isEmpty())
        droppedThrough = order.first().first - 1;
    else
        droppedThrough = m_lastSequence;
    // Carries the numbering on, whatever the rows.
    bytes += JournalFormat::droppedThroughRecord(++m_lastSequence, droppedThrough);

    const QString folder = QFileInfo(m_path).absolutePath();
    QDir().mkpath(folder);
    QByteArray name = encodedPath(folder + QStringLiteral("/.") + QFileInfo(m_path).fileName() +
                                  QStringLiteral(".XXXXXX"));
    const int fd = ::mkostemp(name.data(), O_APPEND | O_CLOEXEC);
    int error = errno;
    bool ok = fd >= 0;
    if (ok) {
        ok = writeAll(fd, bytes.constData(), bytes.size()) &&
             retryInterrupted([&] { return ::fsync(fd); }) == 0 &&
             ::rename(name.constData(), encodedPath(m_path).constData()) == 0;
        error = errno;
        if (!ok) {
            ::close(fd);
            ::unlink(name.constData());
        }
    }
    if (!ok) {
        fail(State::Failing, QStringLiteral("could not be rewritten"), error);
        return false;
    }
    closeFile();
    m_fd = fd;
    m_size = bytes.size();
    m_unsynced = false;
    m_folderUnsynced = !syncFolder(folder);
    m_lastSync = m_now();
    if (m_state == State::Failing)
        recovered(QStringLiteral("writes again"));
    return true;
}

void TypingJournal::fail(State state, const QString& what, int error)
{
    fail(state, what, errorText(error));
}

void TypingJournal::fail(State state, const QString& what, const QString& why)
{
    const bool firstOfEpisode = m_state == State::Writing;
    if (m_state != State::Refused)
        m_state = state;
    if (!firstOfEpisode)
        return;
    m_error = QStringLiteral("Typing journal %1 %2: %3").arg(m_path, what, why);
    qCWarning(lcTranscript).noquote() << m_error;
    if (m_onFailure)
        m_onFailure(m_error);
}

void TypingJournal::recovered(const QString& how)
{
    m_state = State::Writing;
    m_error.clear();
    qCInfo(lcTranscript).noquote() << QStringLiteral("Typing journal %1 %2").arg(m_path, how);
}

void TypingJournal::closeFile()
{
    if (m_syncer)
        m_syncer->waitIdle(); // it may be syncing this fd
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}
