// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/TranscriptionManager.h"

#include "audio/AudioManager.h"
#include "common/DurableWrite.h"
#include "common/Log.h"
#include "transcript/LrcReader.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStringEncoder>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <numeric>
#include <sys/stat.h>
#include <unistd.h>

TranscriptionManager& TranscriptionManager::sharedInstance()
{
    static TranscriptionManager instance;
    return instance;
}

TranscriptionManager::TranscriptionManager(DurationProvider totalDuration)
    : m_totalDuration(std::move(totalDuration))
{
    if (!m_totalDuration)
        m_totalDuration = [] { return AudioManager::sharedInstance().getTotalDuration(); };
}

SegmentList& TranscriptionManager::mutableSegments()
{
    if (!m_segments)
        m_segments.emplace();
    return *m_segments;
}

void TranscriptionManager::setTranscription(const QString& text, qsizetype index)
{
    if (index < 0)
        return;
    while (m_transcriptions.size() <= index)
        m_transcriptions.append(QStringLiteral(""));
    m_transcriptions[index] = text.isNull() ? QStringLiteral("") : text;
}

QString TranscriptionManager::transcriptionForSegment(qsizetype index) const
{
    if (index >= 0 && index < m_transcriptions.size())
        return m_transcriptions[index];
    return QStringLiteral("");
}

void TranscriptionManager::clearAllSegments()
{
    if (m_segments)
        m_segments->clear();
}

bool TranscriptionManager::saveTranscriptionsToFile(const QString& path)
{
    const auto fail = [this](const QString& error) {
        m_lastError = error;
        qCInfo(lcTranscript).noquote() << QStringLiteral("Error writing to file: ") + error;
        return false;
    };

    // Each element followed by a line feed, then the last line feed removed.
    const QString text = m_transcriptions.join(u'\n');

    // A lone surrogate has no UTF-8 form; refuse rather than write a
    // replacement character over what the user typed.
    QStringEncoder encoder(QStringEncoder::Utf8);
    const QByteArray bytes = encoder.encode(text);
    if (encoder.hasError())
        return fail(QStringLiteral("%1: the text cannot be encoded as UTF-8").arg(path));

    // Written beside the target and renamed over it once synced: after any
    // failure the previous file is still there, whole.
    QString error;
    if (!writeFileDurably(path, bytes, &error))
        return fail(error);

    m_lastError.clear();
    qCInfo(lcTranscript, "Successfully wrote to file.");
    return true;
}

namespace {

// Reads a transcript without ever blocking: a FIFO or a device is refused
// after an open that does not wait (O_NONBLOCK) and an fstat, and so is a
// file larger than the limit, before anything is allocated for it.
TranscriptionManager::LoadFault readTranscriptBytes(const QString& path, QByteArray* bytes,
                                                    QString* error)
{
    using Fault = TranscriptionManager::LoadFault;
    const auto failed = [&](Fault fault, const QString& why) {
        *error = QStringLiteral("%1: %2").arg(path, why);
        return fault;
    };
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        return failed(Fault::Unreadable, QString::fromLocal8Bit(std::strerror(errno)));
    const auto closeFd = qScopeGuard([fd] { ::close(fd); });
    struct stat info
    {
    };
    if (::fstat(fd, &info) != 0)
        return failed(Fault::Unreadable, QString::fromLocal8Bit(std::strerror(errno)));
    if (!S_ISREG(info.st_mode))
        return failed(Fault::NotARegularFile, QStringLiteral("not a regular file"));
    if (info.st_size > TranscriptionManager::kMaxTranscriptBytes)
        return failed(Fault::TooLarge, QStringLiteral("%1 bytes, more than %2")
                                           .arg(info.st_size)
                                           .arg(TranscriptionManager::kMaxTranscriptBytes));
    // The buffer grows past the size fstat gave only for a file growing
    // meanwhile, and never past one byte over the limit.
    constexpr qsizetype limit = TranscriptionManager::kMaxTranscriptBytes;
    bytes->resize(static_cast<qsizetype>(info.st_size) + 1);
    qsizetype filled = 0;
    for (;;) {
        if (filled == bytes->size()) {
            if (filled > limit)
                break;
            bytes->resize(std::min(limit + 1, filled * 2 + 4096));
        }
        const ssize_t n =
            ::read(fd, bytes->data() + filled, static_cast<size_t>(bytes->size() - filled));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            const int code = errno;
            bytes->clear();
            return failed(Fault::Unreadable, QString::fromLocal8Bit(std::strerror(code)));
        }
        if (n == 0)
            break;
        filled += n;
    }
    if (filled > limit) {
        bytes->clear();
        return failed(Fault::TooLarge, QStringLiteral("more than %1 bytes").arg(limit));
    }
    bytes->resize(filled);
    return Fault::None;
}

} // namespace

bool TranscriptionManager::loadTranscriptionsFromFile(const QString& path, bool readDamaged)
{
    m_lastLoadFault = LoadFault::None;
    if (!QFileInfo::exists(path)) {
        // The path itself is not printed; this line has always read (null).
        m_lastError = QStringLiteral("%1: no such file").arg(path);
        m_lastLoadFault = LoadFault::Missing;
        qCInfo(lcTranscript, "Error file path: (null)");
        return false;
    }

    QByteArray bytes;
    std::optional<QString> text;
    m_lastLoadFault = readTranscriptBytes(path, &bytes, &m_lastError);
    if (m_lastLoadFault == LoadFault::None)
        text = Lrc::decodeUtf8(bytes);
    if (!text && m_lastLoadFault == LoadFault::None && readDamaged) {
        text = QString::fromUtf8(bytes);
        if (text->startsWith(QChar(0xFEFF)))
            text->remove(0, 1);
    }
    if (!text && m_lastLoadFault == LoadFault::None) {
        m_lastLoadFault = LoadFault::NotUtf8;
        m_lastError = QStringLiteral("The file \u201c%1\u201d couldn\u2019t be opened using text "
                                     "encoding Unicode (UTF-8).")
                          .arg(QFileInfo(path).fileName());
    }
    if (!text) {
        qCInfo(lcTranscript).noquote() << QStringLiteral("Error reading file: ") + m_lastError;
        return false;
    }

    Lrc::StampedLines lines = Lrc::readStampedLines(*text);
    const double total = m_totalDuration();
    m_loadedTotal = total;
    m_sources.clear();
    SegmentList segments = Lrc::buildSegments(lines.stamps, total, &m_sources);

    m_stamps = std::move(lines.stamps);
    m_skippedLines = lines.skipped;
    m_transcriptions = std::move(lines.texts);
    m_segments = std::move(segments);
    m_lastError.clear();
    return true;
}

void TranscriptionManager::orderByTime()
{
    const qsizetype n = std::min(m_stamps.size(), m_transcriptions.size());
    QList<qsizetype> order(n);
    std::iota(order.begin(), order.end(), qsizetype(0));
    std::stable_sort(order.begin(), order.end(),
                     [this](qsizetype a, qsizetype b) { return m_stamps[a] < m_stamps[b]; });
    QList<double> stamps;
    QStringList texts;
    for (qsizetype i : std::as_const(order)) {
        const QString& text = m_transcriptions[i];
        if (!stamps.isEmpty() && std::fabs(m_stamps[i] - stamps.last()) < 1e-6) {
            if (!text.isEmpty())
                texts.last() = texts.last().isEmpty() ? text : texts.last() + u' ' + text;
            continue;
        }
        stamps.append(m_stamps[i]);
        texts.append(text);
    }
    m_stamps = std::move(stamps);
    m_transcriptions = std::move(texts);
    m_sources.clear();
    m_segments = Lrc::buildSegments(m_stamps, m_loadedTotal, &m_sources);
    // The segment before a stamp past the end would run to that stamp.
    for (Segment& segment : *m_segments) {
        if (m_loadedTotal > 0.0 && segment.start + segment.duration > m_loadedTotal)
            segment.duration = m_loadedTotal - segment.start;
    }
}

QStringList TranscriptionManager::textsPerSegment() const
{
    if (!m_segments || m_transcriptions.size() == m_segments->size())
        return m_transcriptions;
    return Lrc::foldTextsOntoSegments(m_stamps, m_transcriptions, *m_segments, m_sources);
}

bool TranscriptionManager::loadedWhole() const
{
    return m_skippedLines == 0 && m_segments && m_transcriptions.size() == m_segments->size();
}

QString TranscriptionManager::exportToText() const
{
    QString out;
    for (qsizetype i = 0; i < m_transcriptions.size(); ++i)
        out += QString::number(i + 1) + QStringLiteral(". ") + m_transcriptions[i] + u'\n';
    return out;
}
