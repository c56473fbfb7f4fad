// SPDX-License-Identifier: GPL-3.0-or-later
// The typing journal on a folder that turned read-only and on a full disk:
// one warning, the typing kept in memory, no file but the journal touched.
// Each case runs in a forked child with a small tmpfs of its own.

#include "ChildProcess.h"
#include "support/TestSupport.h"
#include "transcript/TypingJournal.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/mount.h>

namespace {

// In the child: the number of the failed check is its exit code.
#define CHILD_CHECK(condition)                                                                     \
    do {                                                                                           \
        ++check;                                                                                   \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "check %d failed: %s\n", check, #condition);                     \
            return check;                                                                          \
        }                                                                                          \
    } while (0)

QByteArray read(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QStringList entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
}

// The journal's warnings; its "writes again" line is information.
qsizetype warnings(const TestSupport::LogCapture& log)
{
    const QStringList lines = log.lines().filter("Typing journal");
    return lines.size() - lines.filter("writes again").size();
}

void expectChildPassed(int outcome)
{
    if (outcome == ChildProcess::Unsupported)
        GTEST_SKIP() << "no private tmpfs can be mounted here (no user or mount namespaces)";
    EXPECT_EQ(outcome, 0) << "the child's failed check, see its stderr";
}

} // namespace

TEST(TypingJournalFaults, AReadOnlyFolderStillRecoversAndReportsOnce)
{
    QTemporaryDir dir;
    const QString folder = dir.filePath("state");
    ASSERT_TRUE(QDir().mkpath(folder));
    expectChildPassed(ChildProcess::run([&] {
        int check = 0;
        if (!ChildProcess::mountPrivateTmpfs(folder, "size=1m,mode=0700"))
            return ChildProcess::Unsupported;
        const QString path = folder + "/lesson.journal";
        {
            TypingJournal journal(path);
            journal.append(0, "typed before the crash");
            journal.append(1, "and this");
        }
        const QByteArray before = read(path);
        // Root ignores permissions; a read-only mount it cannot.
        CHILD_CHECK(::mount(nullptr, QFile::encodeName(folder).constData(), nullptr,
                            MS_REMOUNT | MS_RDONLY, nullptr) == 0);

        TestSupport::LogCapture log;
        TypingJournal journal(path);
        CHILD_CHECK(journal.recovered().records.size() == 2);
        CHILD_CHECK(journal.state() == TypingJournal::State::Failing);
        int reported = 0;
        journal.setFailureHandler([&](const QString&) { ++reported; });
        for (int i = 0; i < 50; ++i) {
            journal.append(i % 3, QString("key %1").arg(i));
            journal.syncIfDue();
        }
        CHILD_CHECK(!journal.sync());
        CHILD_CHECK(!journal.dropThrough(journal.lastSequence()));
        CHILD_CHECK(!journal.compact());
        CHILD_CHECK(reported == 0); // reported once already, while opening
        CHILD_CHECK(warnings(log) == 1);

        // A lesson with no journal yet: its first append finds out.
        TypingJournal fresh(folder + "/other.journal");
        fresh.setFailureHandler([&](const QString&) { ++reported; });
        fresh.append(0, "a");
        fresh.append(0, "ab");
        fresh.sync();
        CHILD_CHECK(fresh.state() == TypingJournal::State::Failing);
        CHILD_CHECK(reported == 1);
        CHILD_CHECK(read(path) == before);
        CHILD_CHECK(entries(folder) == QStringList{"lesson.journal"});
        return 0;
    }));
}

TEST(TypingJournalFaults, AFullDiskFailsOnceThenTheRewriteCatchesUpWhenThereIsRoom)
{
    QTemporaryDir dir;
    const QString folder = dir.filePath("state");
    ASSERT_TRUE(QDir().mkpath(folder));
    expectChildPassed(ChildProcess::run([&] {
        int check = 0;
        if (!ChildProcess::mountPrivateTmpfs(folder, "size=64k,mode=0700"))
            return ChildProcess::Unsupported;
        // Another file fills half of the disk; the journal never touches it.
        const QString ballast = folder + "/ballast";
        const QByteArray ballastBytes(32 * 1024, 'b');
        {
            QFile f(ballast);
            CHILD_CHECK(f.open(QIODevice::WriteOnly) && f.write(ballastBytes) == ballastBytes.size());
        }
        const QString path = folder + "/lesson.journal";
        TestSupport::LogCapture log;
        TypingJournal journal(path);
        int reported = 0;
        journal.setFailureHandler([&](const QString&) { ++reported; });
        QStringList expected(8);
        for (int i = 0; i < 60; ++i) {
            expected[i % 8] = QString("row %1 typed %2 ").arg(i % 8).arg(i).repeated(60);
            journal.append(i % 8, expected[i % 8]);
            journal.syncIfDue();
        }
        CHILD_CHECK(journal.state() == TypingJournal::State::Failing);
        CHILD_CHECK(reported == 1);
        CHILD_CHECK(warnings(log) == 1);
        // What reached the file is whole records, no torn end.
        const TypingJournal::Replay partial = TypingJournal::replay(path);
        CHILD_CHECK(partial.status == TypingJournal::Replay::Status::Ok);
        CHILD_CHECK(partial.ignoredBytes == 0);
        CHILD_CHECK(!partial.records.isEmpty());
        CHILD_CHECK(!journal.sync()); // still full: the rewrite fails quietly
        CHILD_CHECK(reported == 1);
        CHILD_CHECK(read(ballast) == ballastBytes);
        CHILD_CHECK(entries(folder) == (QStringList{"ballast", "lesson.journal"}));

        // Room again: the next sync rewrites the journal from memory.
        CHILD_CHECK(QFile::remove(ballast));
        CHILD_CHECK(journal.sync());
        CHILD_CHECK(journal.state() == TypingJournal::State::Writing);
        QStringList rows(8);
        TypingJournal::apply(TypingJournal::replay(path).records, rows);
        CHILD_CHECK(rows == expected);
        CHILD_CHECK(entries(folder) == QStringList{"lesson.journal"});
        return 0;
    }));
}
