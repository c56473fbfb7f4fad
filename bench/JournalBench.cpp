// SPDX-License-Identifier: GPL-3.0-or-later
// The typing journal:
//  1. a 720-row lesson typed key by key at about seven keys a second (the
//     clock the journal syncs by is simulated, the timing is real): the cost
//     of each key's append with the periodic sync, p50/p99/max (target p99
//     1 ms), and of the sync at each row change; a save every 5 s drops what
//     it covered. Once with fdatasync on the typing thread, once on the
//     journal's writer thread;
//  2. replaying a 256 KB journal and applying it to 720 rows, and opening a
//     journal of that size: medians (target: opening costs 20 ms at most).
// Usage: journal_bench [folder]   (default: a temporary folder in /tmp; give
// one on the file system of the application's data folder to measure that)

#include "BenchSupport.h"
#include "LessonSentences.h"
#include "transcript/TypingJournal.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const QStringList& kSentences = Bench::lessonSentences();

double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, size_t(p * double(values.size())))];
}

double ms(qint64 ns)
{
    return double(ns) / 1e6;
}

struct TypingStats
{
    std::vector<double> appends;
    std::vector<double> keys;
    std::vector<double> rowChanges;
    int syncs = 0;
    QString error;
};

// Each row's sentence typed a key at a time, 140 ms apart on the journal's
// clock; at a row change the sync, and every 5 s the save's drop.
TypingStats typeLesson(const QString& path, int rows, TypingJournal::Syncing syncing)
{
    TypingStats stats;
    TypingJournal::TimePoint simulated{};
    TypingJournal journal(path, [&] { return simulated; }, syncing);
    TypingJournal::TimePoint lastSave = simulated;
    QElapsedTimer timer;
    for (int row = 0; row < rows; ++row) {
        const QString sentence = kSentences[row % kSentences.size()];
        for (qsizetype k = 1; k <= sentence.size(); ++k) {
            simulated += std::chrono::milliseconds(140);
            timer.start();
            journal.append(row, sentence.left(k));
            const qint64 appended = timer.nsecsElapsed();
            stats.syncs += journal.syncIfDue() ? 1 : 0;
            stats.appends.push_back(ms(appended));
            stats.keys.push_back(ms(timer.nsecsElapsed()));
        }
        timer.start();
        journal.sync();
        if (simulated - lastSave >= std::chrono::seconds(5)) {
            // The auto-save took its snapshot at this row change.
            journal.dropThrough(journal.lastSequence());
            lastSave = simulated;
        }
        stats.rowChanges.push_back(ms(timer.nsecsElapsed()));
    }
    if (journal.state() != TypingJournal::State::Writing)
        stats.error = journal.errorString();
    return stats;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir temporary(argc > 1 ? QString::fromLocal8Bit(argv[1]) + "/journal-bench-XXXXXX"
                                     : QDir::tempPath() + "/journal-bench-XXXXXX");
    if (!temporary.isValid()) {
        std::fprintf(stderr, "cannot make a folder: %s\n", qPrintable(temporary.errorString()));
        return 1;
    }
    constexpr int kRows = 720;

    // 1. Typing, with the sync on the typing thread and on the journal's own.
    for (const auto syncing :
         {TypingJournal::Syncing::OnCallingThread, TypingJournal::Syncing::OnWriterThread}) {
        const TypingStats stats = typeLesson(temporary.filePath("typing.journal"), kRows, syncing);
        if (!stats.error.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(stats.error));
            return 1;
        }
        std::printf("typing %d rows, fdatasync on the %s thread: %zu keys, %d periodic syncs\n",
                    kRows,
                    syncing == TypingJournal::Syncing::OnCallingThread ? "typing" : "writer",
                    stats.keys.size(), stats.syncs);
        std::printf("  append alone:                   p50 %.3f ms, p99 %.3f ms, max %.3f ms\n",
                    percentile(stats.appends, 0.5), percentile(stats.appends, 0.99),
                    percentile(stats.appends, 1.0));
        std::printf("  append + periodic sync per key: p50 %.3f ms, p99 %.3f ms, max %.3f ms "
                    "(target p99 1 ms)\n",
                    percentile(stats.keys, 0.5), percentile(stats.keys, 0.99),
                    percentile(stats.keys, 1.0));
        std::printf("  row change (sync, save's drop): p50 %.3f ms, p99 %.3f ms, max %.3f ms\n",
                    percentile(stats.rowChanges, 0.5), percentile(stats.rowChanges, 0.99),
                    percentile(stats.rowChanges, 1.0));
        QFile::remove(temporary.filePath("typing.journal"));
    }

    // 2. A 256 KB journal: every row typed over and over, nothing saved.
    const QString bigPath = temporary.filePath("big.journal");
    {
        TypingJournal journal(bigPath);
        // Just under the size that is compacted when opened.
        for (int i = 0; journal.fileSize() < TypingJournal::kCompactionBytes - 200; ++i)
            journal.append(i % kRows, kSentences[i % kSentences.size()].left(20 + i % 40));
        std::printf("replay of a %lld-byte journal:\n", journal.fileSize());
    }
    std::vector<double> replays;
    std::vector<double> opens;
    int records = 0;
    for (int run = 0; run < 30; ++run) {
        QElapsedTimer timer;
        timer.start();
        const TypingJournal::Replay replay = TypingJournal::replay(bigPath);
        QStringList rows(kRows);
        TypingJournal::apply(replay.records, rows);
        replays.push_back(ms(timer.nsecsElapsed()));
        records = int(replay.records.size());
        timer.start();
        const TypingJournal opened(bigPath);
        opens.push_back(ms(timer.nsecsElapsed()));
    }
    std::printf("  %d records: replay and apply median %.3f ms; opening the journal median "
                "%.3f ms (target 20 ms)\n",
                records, Bench::median(replays), Bench::median(opens));
    return 0;
}
