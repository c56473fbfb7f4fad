// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class JournalSyncer;

// One lesson's typing journal: every change of a row's text is appended at
// once, so that what was typed since the last save survives a crash, a kill
// or a power cut. The format is described in JournalFormat.h.
//
// A record reaches the file in one write(2), with no buffer in the process;
// fdatasync follows at most once a second while records are unsynced
// (syncIfDue(), driven by the caller's timer) and at every sync() (row
// changes, quit). Once a save has written the rows, dropThrough() drops the
// records it covered; a file over kCompactionBytes is rewritten as one
// snapshot (each live row's latest record) through a temporary file and a
// rename. Sequence numbers only grow, across reopening and rewriting.
//
// Failures (a read-only or full folder, a file that is not a journal) never
// throw and never touch any other file: the first is logged as one warning
// and handed to the failure handler, and the journal goes on keeping the rows
// in memory. After a failed write the next sync() tries to rewrite the whole
// journal from memory and, when that works, carries on appending. A file that
// is not a Kelmora journal, or that cannot be read, is never written.
//
// A sync takes milliseconds on a real disk, too long for a key press (see
// journal_bench): by default fdatasync runs on a thread of the journal's own,
// syncIfDue() and sync() hand it over and return, and a failure shows at the
// next call. The write itself stays on the caller's thread; it takes
// microseconds. Destruction waits for the last sync.
//
// Not thread-safe: used from one thread.
class TypingJournal
{
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Now = std::function<TimePoint()>;

    static constexpr qint64 kCompactionBytes = 256 * 1024;
    static constexpr std::chrono::milliseconds kSyncInterval{1000};

    struct Record
    {
        quint64 sequence = 0;
        int row = 0;
        QString text;
        bool operator==(const Record&) const = default;
    };

    struct Replay
    {
        enum class Status {
            Ok,         // a journal, or no file at all
            Foreign,    // something that is not a Kelmora journal (or a later version)
            Unreadable, // not a regular file, too large, or reading failed
        };
        Status status = Status::Ok;
        // The records not dropped yet, oldest first.
        QList<Record> records;
        // The highest sequence number the file used.
        quint64 lastSequence = 0;
        // Bytes after the last good record: a torn or damaged tail.
        qint64 ignoredBytes = 0;
        // Why the status is not Ok.
        QString error;
    };

    struct Applied
    {
        int applied = 0; // records that changed a row's text or confirmed it
        int pastEnd = 0; // records for rows the list does not have
    };

    enum class Syncing { OnWriterThread, OnCallingThread };

    enum class State {
        Writing, // records reach the file
        Failing, // a write failed; rows are kept in memory until a rewrite works
        Refused, // the file is not a journal or cannot be read: never written
    };

    // The journals' folder: the application's local data folder + "/journal".
    static QString folderPath();
    // "<identity>.journal"; a null string for an identity that is empty, holds
    // a "/" or "\" or starts with ".", which would leave the folder or hide.
    static QString fileNameFor(const QString& identity);

    // Reads every whole, CRC-valid record; never blocks on a FIFO or device.
    static Replay replay(const QString& path);
    // Puts the text of each record newer than `after` into its row, in order.
    static Applied apply(const QList<Record>& records, QStringList& rows, quint64 after = 0);

    // Opens (and replays) the journal at `path`. The file and its folder are
    // made at the first append. `now` is the clock the sync interval is
    // measured on; the steady clock when empty.
    explicit TypingJournal(const QString& path, Now now = {},
                           Syncing syncing = Syncing::OnWriterThread);
    // Syncs what is unsynced.
    ~TypingJournal();
    TypingJournal(const TypingJournal&) = delete;
    TypingJournal& operator=(const TypingJournal&) = delete;

    QString path() const { return m_path; }
    // What the file held when it was opened; the caller applies its records.
    const Replay& recovered() const { return m_recovered; }

    // Records "row now reads text" and returns its sequence number. Text that
    // is not valid UTF-16 (a lone surrogate) is written with U+FFFD for it.
    quint64 append(int row, const QString& text);
    // fdatasync when records are unsynced and the last sync is kSyncInterval
    // old; true when it synced.
    bool syncIfDue();
    // fdatasync now if anything is unsynced; after a failed write, tries the
    // rewrite. Compacts a file grown past kCompactionBytes. False on failure.
    bool sync();
    // Drops the records up to and including `sequence`: the sequence number
    // a save's snapshot of the rows was taken at.
    bool dropThrough(quint64 sequence);
    // Rewrites the file as one snapshot now.
    bool compact();

    quint64 lastSequence() const { return m_lastSequence; }
    qint64 fileSize() const { return m_size; }
    bool hasUnsyncedRecords() const { return m_unsynced; }
    State state() const { return m_state; }
    // The first failure of the current episode; empty while writing.
    QString errorString() const { return m_error; }
    // Called once per failure episode, with the logged message.
    void setFailureHandler(std::function<void(const QString&)> handler) { m_onFailure = std::move(handler); }

private:
    struct Live
    {
        quint64 sequence = 0;
        QString text;
    };

    void open();
    bool create();
    bool appendBytes(const QByteArray& bytes);
    bool rewrite();
    bool syncNow(bool wait);
    bool collectSyncError();
    void fail(State state, const QString& what, int error);
    void fail(State state, const QString& what, const QString& why);
    void recovered(const QString& how);
    void closeFile();

    QString m_path;
    Now m_now;
    std::unique_ptr<JournalSyncer> m_syncer;
    Replay m_recovered;
    int m_fd = -1;
    State m_state = State::Writing;
    QString m_error;
    std::function<void(const QString&)> m_onFailure;

    // Each row's latest record that is not dropped.
    QMap<int, Live> m_rows;
    quint64 m_lastSequence = 0;
    qint64 m_size = 0;
    bool m_unsynced = false;
    bool m_folderUnsynced = false;
    std::optional<TimePoint> m_lastSync;
};
