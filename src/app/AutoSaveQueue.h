// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

class QThreadPool;

// The background save of what was typed: one thread of its own, so two
// saves never overlap, and the time of the last save that was started, so a
// learner clicking from row to row writes at most once every five seconds.
//
// A job never reads the table or the engine: the main thread hands it a
// snapshot of the texts and the segment starts, and the job builds its own
// lines from those, in its own staging list.
class AutoSaveQueue
{
public:
    // Seconds on any steady scale; the first save of a process is never held
    // back (the last one counts as started at 0).
    using TimeSource = std::function<double()>;

    struct Snapshot
    {
        QString audioPath;            // the file whose identity names the store file
        QString transcriptionsFolder; // where store files live
        QStringList texts;            // one per row, as typed
        QList<double> starts;         // the segment start of each row (0 past the last)
        // The recording's content fingerprint, recorded in the store's index
        // with the identity once the rows are on disk; empty records nothing.
        QString fingerprint{};
    };

    // Called back on the main thread with the outcome and the identity.
    using Finished = std::function<void(bool saved, const QString& identifier)>;

    static constexpr double kThrottleSeconds = 5.0;

    explicit AutoSaveQueue(TimeSource now = {});
    ~AutoSaveQueue(); // waits for a job in flight: a save is never cut short
    AutoSaveQueue(const AutoSaveQueue&) = delete;
    AutoSaveQueue& operator=(const AutoSaveQueue&) = delete;

    // The process's queue.
    static AutoSaveQueue& shared();

    // Whether a save now would come too soon after the last one started.
    bool isThrottled() const;
    // Records now as the last start and queues the job.
    void enqueue(Snapshot snapshot, Finished finished = {});
    // Blocks until every queued job has run (shutdown and tests).
    void waitForDone();
    double lastAutoSaveTime() const { return m_lastAutoSaveTime; }

    // The job itself, on the calling thread: the store folder made again if it
    // went, then the lines written durably over the store file, then the
    // fingerprint's entry in the index. Returns whether the lines reached the
    // disk (an index that cannot be written costs a warning only); the
    // identity is the store file's name (empty when the audio file cannot be
    // examined).
    static bool save(const Snapshot& snapshot, QString* identifier = nullptr);
    // The transcript lines the snapshot stands for.
    static QStringList linesForSnapshot(const Snapshot& snapshot);

private:
    TimeSource m_now;
    double m_lastAutoSaveTime = 0.0;
    std::unique_ptr<QThreadPool> m_queue; // made on first use, then kept
};
