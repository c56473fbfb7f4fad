// SPDX-License-Identifier: GPL-3.0-or-later
// A failed save must leave the previous transcript whole and say so.

#include "ChildProcess.h"
#include "support/TestSupport.h"
#include "transcript/TranscriptionManager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

const QByteArray previous = "[00:00.000]what was typed yesterday\n[00:02.500]and kept";

// Child exit codes, so the parent can tell what went wrong.
enum Outcome
{
    Ok = 0,
    SaveSucceeded = 1,
    NoLogLine = 2,
    PreviousChanged = 3,
    LeftoverFile = 4,
    SetUpFailed = 5
};

bool write(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

QByteArray read(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QStringList entries(const QString& dir)
{
    return QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                               QDir::NoDotAndDotDot);
}

// A transcript much larger than the space the tests leave for it.
TranscriptionManager bigTranscript()
{
    TranscriptionManager store([] { return 0.0; });
    for (int i = 0; i < 4000; ++i)
        store.setTranscription(QStringLiteral("[00:%1.000]a line that takes some room on the disk")
                                   .arg(i % 60, 2, 10, QLatin1Char('0')),
                               i);
    return store;
}

// Saves over `target` (which holds `previous`) and checks the outcome from
// inside the process that saved.
int saveAndCheck(const QString& target)
{
    TestSupport::LogCapture log;
    TranscriptionManager store = bigTranscript();
    if (store.saveTranscriptionsToFile(target))
        return SaveSucceeded;
    bool logged = false;
    for (const QString& line : log.lines())
        logged = logged ||
                 (line.startsWith("Error writing to file: " + target + ": ") && line.size() > 40);
    if (!logged)
        return NoLogLine;
    if (read(target) != previous)
        return PreviousChanged;
    if (entries(QFileInfo(target).path()) != QStringList{QFileInfo(target).fileName()})
        return LeftoverFile;
    return Ok;
}

} // namespace

TEST(TranscriptWriteFailure, ReadOnlyFolderKeepsThePreviousFile)
{
    QTemporaryDir dir;
    const QString target = dir.filePath("transcript");
    ASSERT_TRUE(write(target, previous));
    ASSERT_TRUE(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner));

    const int outcome = ChildProcess::run([&] {
        if (!ChildProcess::dropPermissionOverrides())
            return static_cast<int>(SetUpFailed);
        return saveAndCheck(target);
    });

    QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(outcome, Ok);
    EXPECT_EQ(read(target), previous);
    EXPECT_EQ(entries(dir.path()), QStringList{"transcript"});
}

TEST(TranscriptWriteFailure, FullDiskKeepsThePreviousFile)
{
    QTemporaryDir dir;
    const QString mountPoint = dir.filePath("small");
    ASSERT_TRUE(QDir().mkpath(mountPoint));

    const int outcome = ChildProcess::run([&] {
        // A 64 KiB file system: the previous transcript fits, the new one not.
        if (!ChildProcess::mountPrivateTmpfs(mountPoint, "size=64k,mode=0700"))
            return ChildProcess::Unsupported;
        const QString target = mountPoint + "/transcript";
        if (!write(target, previous))
            return static_cast<int>(SetUpFailed);
        return saveAndCheck(target);
    });
    if (outcome == ChildProcess::Unsupported)
        GTEST_SKIP()
            << "no private tmpfs can be mounted here; the file-size limit test covers this";
    EXPECT_EQ(outcome, Ok);
}

TEST(TranscriptWriteFailure, FileSizeLimitKeepsThePreviousFile)
{
    QTemporaryDir dir;
    const QString target = dir.filePath("transcript");
    ASSERT_TRUE(write(target, previous));

    const int outcome = ChildProcess::run([&] {
        // Writing past the limit fails with EFBIG instead of ending the process.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{8192, 8192};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return static_cast<int>(SetUpFailed);
        return saveAndCheck(target);
    });
    EXPECT_EQ(outcome, Ok);
    EXPECT_EQ(read(target), previous);
    EXPECT_EQ(entries(dir.path()), QStringList{"transcript"});
}

TEST(TranscriptWriteFailure, TextWithoutAUtf8FormIsRefusedBeforeTouchingTheFile)
{
    QTemporaryDir dir;
    const QString target = dir.filePath("transcript");
    ASSERT_TRUE(write(target, previous));
    TranscriptionManager store([] { return 0.0; });
    store.setTranscription(QString(QChar(0xD800)) + "lone surrogate", 0);
    TestSupport::LogCapture log;
    EXPECT_FALSE(store.saveTranscriptionsToFile(target));
    EXPECT_EQ(read(target), previous);
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].startsWith("Error writing to file: "));
    EXPECT_FALSE(store.lastError().isEmpty());
}

TEST(TranscriptWriteFailure, MissingFolderIsReported)
{
    QTemporaryDir dir;
    TranscriptionManager store([] { return 0.0; });
    store.setTranscription("[00:00.000]x", 0);
    TestSupport::LogCapture log;
    EXPECT_FALSE(store.saveTranscriptionsToFile(dir.filePath("no/such/folder/transcript")));
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines()[0].startsWith("Error writing to file: "));
}
