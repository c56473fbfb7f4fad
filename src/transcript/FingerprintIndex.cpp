// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/FingerprintIndex.h"

#include "common/DurableWrite.h"
#include "common/FileStat.h"
#include "common/Log.h"
#include "reference/ReferenceStore.h"
#include "transcript/ContentFingerprint.h"

#include <QMap>
#include <mutex>
#include <utility>

namespace {

// The first line: what the file is, and its layout.
const QByteArray kHeader = QByteArrayLiteral("kelmora-fingerprint-index 1\n");

// A stored transcript or reference is far below this; the journal's
// compaction keeps it there too.
constexpr qint64 kMaxCopyBytes = 64 * 1024 * 1024;

// One read-modify-write at a time: the auto-save thread and the main thread
// both record.
std::mutex& recordMutex()
{
    static std::mutex mutex;
    return mutex;
}

using Entries = QMap<QString, FingerprintIndex::Entry>;

// The lines after the header; nothing when the file is not an index of ours.
std::optional<QByteArray> readIndex(const QString& path)
{
    bool missing = false;
    QString error;
    const std::optional<QByteArray> bytes =
        readRegularFile(path, FingerprintIndex::kMaxIndexBytes, &error, &missing);
    if (!bytes) {
        if (!missing)
            qCWarning(lcTranscript, "Fingerprint index ignored: %s", qUtf8Printable(error));
        return std::nullopt;
    }
    if (!bytes->startsWith(kHeader)) {
        qCWarning(lcTranscript, "Fingerprint index ignored: %s: not an index Kelmora can read",
                  qUtf8Printable(path));
        return std::nullopt;
    }
    return bytes->mid(kHeader.size());
}

// "<fingerprint> <identity> <saved> <path>"; nothing for a damaged line.
std::optional<std::pair<QString, FingerprintIndex::Entry>> parseLine(QByteArrayView line)
{
    const QList<QByteArrayView> fields = [&] {
        QList<QByteArrayView> parts;
        for (int i = 0; i < 3; ++i) {
            const qsizetype space = line.indexOf(' ');
            if (space < 0)
                return QList<QByteArrayView>();
            parts.append(line.first(space));
            line = line.sliced(space + 1);
        }
        parts.append(line);
        return parts;
    }();
    if (fields.size() != 4)
        return std::nullopt;
    bool number = false;
    const qint64 saved = fields[2].toLongLong(&number);
    const QString fingerprint = QString::fromLatin1(fields[0]);
    FingerprintIndex::Entry entry{
        QString::fromLatin1(fields[1]),
        QString::fromUtf8(QByteArray::fromPercentEncoding(fields[3].toByteArray())),
        QDateTime::fromMSecsSinceEpoch(saved, Qt::UTC)};
    if (!number || !ContentFingerprint::isWellFormed(fingerprint) ||
        !ContentFingerprint::isWellFormed(entry.identity))
        return std::nullopt;
    return std::pair{fingerprint, std::move(entry)};
}

QByteArray lineFor(const QString& fingerprint, const FingerprintIndex::Entry& entry)
{
    // Percent-encoded, a path holds no space or line break.
    return fingerprint.toLatin1() + ' ' + entry.identity.toLatin1() + ' ' +
           QByteArray::number(entry.saved.toMSecsSinceEpoch()) + ' ' +
           entry.audioPath.toUtf8().toPercentEncoding("/") + '\n';
}

} // namespace

FingerprintIndex::FingerprintIndex(const QString& transcriptionsFolder)
    : m_folder(transcriptionsFolder)
{
}

QString FingerprintIndex::path() const
{
    return m_folder + u'/' + FileName;
}

std::optional<FingerprintIndex::Entry> FingerprintIndex::lookup(const QString& fingerprint) const
{
    if (m_folder.isEmpty() || !ContentFingerprint::isWellFormed(fingerprint))
        return std::nullopt;
    const std::optional<QByteArray> lines = readIndex(path());
    if (!lines)
        return std::nullopt;
    // Only the line of this fingerprint is parsed: the opening waits for it.
    const QByteArray key = fingerprint.toLatin1() + ' ';
    for (qsizetype at = lines->indexOf(key); at >= 0; at = lines->indexOf(key, at + 1)) {
        if (at > 0 && lines->at(at - 1) != '\n')
            continue;
        const qsizetype end = lines->indexOf('\n', at);
        if (end < 0)
            return std::nullopt; // a line cut short
        if (auto parsed = parseLine(QByteArrayView(*lines).sliced(at, end - at)))
            return std::move(parsed->second);
    }
    return std::nullopt;
}

std::optional<FingerprintIndex::Entry>
FingerprintIndex::lookupElsewhere(const QString& fingerprint, const QString& identity) const
{
    std::optional<Entry> entry = lookup(fingerprint);
    if (!entry || entry->identity == identity)
        return std::nullopt;
    const std::optional<FileStat> transcript = statFile(m_folder + u'/' + entry->identity, false);
    if (!transcript || transcript->type != FileStat::Type::Regular)
        return std::nullopt;
    return entry;
}

bool FingerprintIndex::record(const QString& fingerprint, const Entry& entry, QString* error) const
{
    if (m_folder.isEmpty() || !ContentFingerprint::isWellFormed(fingerprint) ||
        !ContentFingerprint::isWellFormed(entry.identity) || !entry.saved.isValid()) {
        if (error)
            *error = QStringLiteral("%1: not a fingerprint and identity to record").arg(path());
        return false;
    }
    const std::lock_guard lock(recordMutex());
    Entries entries;
    if (const std::optional<QByteArray> lines = readIndex(path())) {
        // A last line without its line break was cut short and is dropped.
        for (qsizetype at = 0, end = 0; (end = lines->indexOf('\n', at)) >= 0; at = end + 1) {
            if (auto parsed = parseLine(QByteArrayView(*lines).sliced(at, end - at)))
                entries.insert(parsed->first, std::move(parsed->second));
        }
    }
    entries.insert(fingerprint, entry);
    QByteArray bytes = kHeader;
    for (auto it = entries.cbegin(); it != entries.cend(); ++it)
        bytes += lineFor(it.key(), it.value());
    return writeFileDurably(path(), bytes, error);
}

bool FingerprintIndex::copyDictation(const QString& from, const QString& to, QString* error) const
{
    if (m_folder.isEmpty() || !ContentFingerprint::isWellFormed(from) ||
        !ContentFingerprint::isWellFormed(to) || from == to) {
        if (error)
            *error =
                QStringLiteral("%1: no dictation to copy from %2 to %3").arg(m_folder, from, to);
        return false;
    }
    const QString source = m_folder + u'/' + from;
    const QString target = m_folder + u'/' + to;
    switch (copyFileDurably(source, target, kMaxCopyBytes, error)) {
    case CopyOutcome::Copied:
        break;
    case CopyOutcome::NoSource:
        if (error)
            *error = QStringLiteral("%1: the dictation is no longer there").arg(source);
        return false;
    case CopyOutcome::TargetExists:
        if (error)
            *error = QStringLiteral("%1: a dictation is already stored there").arg(target);
        return false;
    case CopyOutcome::Failed:
        return false;
    }
    // The transcript is what counts: a reference that cannot be copied is
    // only a warning, and one already there is the learner's newer choice.
    QString referenceError;
    if (copyFileDurably(source + ReferenceStore::Extension, target + ReferenceStore::Extension,
                        kMaxCopyBytes, &referenceError) == CopyOutcome::Failed)
        qCWarning(lcTranscript, "The reference text was not copied: %s",
                  qUtf8Printable(referenceError));
    return true;
}
