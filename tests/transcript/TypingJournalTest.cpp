// SPDX-License-Identifier: GPL-3.0-or-later
// The typing journal: what is appended comes back, whole records only, after
// any cut or damage; saves drop what they covered; faults never cost a byte
// of another file.

#include "support/TestSupport.h"
#include "transcript/TypingJournal.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using TestSupport::readFile;
using TestSupport::writeFile;
using Record = TypingJournal::Record;

namespace {

// The sync interval passes only when a test moves this clock.
struct FakeClock
{
    TypingJournal::TimePoint time{};
    TypingJournal::Now now()
    {
        return [this] { return time; };
    }
};

class TypingJournalTest : public ::testing::Test
{
protected:
    QString path() const { return dir.filePath("lesson.journal"); }
    QStringList entries() const
    {
        return QDir(dir.path()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    // Appends each text to its row and returns the records as written.
    QList<Record> write(const QList<std::pair<int, QString>>& changes)
    {
        TypingJournal journal(path());
        QList<Record> written;
        for (const auto& [row, text] : changes)
            written.append({journal.append(row, text), row, text});
        return written;
    }

    QTemporaryDir dir;
};

const QList<std::pair<int, QString>> kAwkward = {
    {0, QString()},
    {1, "two\nlines\r\nand a CR\r"},
    {2, QString::fromUtf8("caf\u00e9 \U0001F600 \u05E9\u05DC\u05D5\u05DD")},
    {3, QString(10000, u'\u00e9')},
    {4, QString::fromUtf8("nul\0inside", 10)},
    {1, "row 1 again"},
};

} // namespace

TEST_F(TypingJournalTest, AwkwardTextsComeBackInOrderAndApplyingTwiceChangesNothing)
{
    const QList<Record> written = write(kAwkward);
    const TypingJournal::Replay replay = TypingJournal::replay(path());
    EXPECT_EQ(replay.status, TypingJournal::Replay::Status::Ok);
    EXPECT_EQ(replay.ignoredBytes, 0);
    EXPECT_EQ(replay.records, written);

    QStringList rows(4, "store text");
    const TypingJournal::Applied applied = TypingJournal::apply(replay.records, rows);
    EXPECT_EQ(applied.applied, 5);
    EXPECT_EQ(applied.pastEnd, 1); // row 4 of a 4-row lesson
    const QStringList once = rows;
    TypingJournal::apply(replay.records, rows);
    EXPECT_EQ(rows, once);
    EXPECT_EQ(rows, (QStringList{QString(), "row 1 again", kAwkward[2].second, kAwkward[3].second}));

    // Only what is newer than the store's sequence number.
    QStringList fresh(4);
    EXPECT_EQ(TypingJournal::apply(replay.records, fresh, written[4].sequence).applied, 1);
    EXPECT_EQ(fresh, (QStringList{{}, "row 1 again", {}, {}}));
}

TEST_F(TypingJournalTest, SequenceNumbersGrowAcrossReopeningDroppingAndRewriting)
{
    quint64 last = write({{0, "a"}, {1, "b"}, {0, "ab"}}).last().sequence;
    {
        TypingJournal journal(path());
        EXPECT_EQ(journal.recovered().records.size(), 3);
        EXPECT_EQ(journal.lastSequence(), last);
        const quint64 next = journal.append(2, "c");
        EXPECT_GT(next, last);
        ASSERT_TRUE(journal.compact());
        last = journal.append(1, "bc");
        EXPECT_GT(last, next);
        ASSERT_TRUE(journal.dropThrough(last));
        EXPECT_GT(journal.lastSequence(), last);
        last = journal.lastSequence();
    }
    TypingJournal journal(path());
    EXPECT_TRUE(journal.recovered().records.isEmpty());
    EXPECT_EQ(journal.lastSequence(), last);
    EXPECT_GT(journal.append(0, "d"), last);
}

TEST_F(TypingJournalTest, ATornLastRecordLosesOnlyThatRecordAndLaterAppendsAreReadBack)
{
    const QList<Record> written = write(kAwkward);
    const QByteArray whole = readFile(path());
    const qsizetype lastRecord = 4 + 13 + 4 + written.last().text.toUtf8().size();
    for (qsizetype cut = whole.size() - lastRecord; cut < whole.size(); ++cut) {
        SCOPED_TRACE(cut);
        writeFile(path(), whole.left(cut));
        const TypingJournal::Replay replay = TypingJournal::replay(path());
        EXPECT_EQ(replay.records, written.mid(0, written.size() - 1));
        EXPECT_EQ(replay.ignoredBytes, cut - (whole.size() - lastRecord));
    }
    // Opening it cuts the torn end away, so that new records are reachable.
    {
        TypingJournal journal(path());
        EXPECT_EQ(journal.state(), TypingJournal::State::Writing);
        journal.append(5, "after the tear");
    }
    const TypingJournal::Replay replay = TypingJournal::replay(path());
    EXPECT_EQ(replay.ignoredBytes, 0);
    ASSERT_FALSE(replay.records.isEmpty());
    EXPECT_EQ(replay.records.last().text, "after the tear");
}

TEST_F(TypingJournalTest, RandomBitFlipsLeaveOnlyWholeGoodRecords)
{
    const QList<Record> written = write(kAwkward);
    const QByteArray whole = readFile(path());
    QRandomGenerator random(20);
    for (int trial = 0; trial < 400; ++trial) {
        QByteArray damaged = whole;
        const int flips = 1 + trial % 3;
        for (int i = 0; i < flips; ++i)
            damaged[random.bounded(int(damaged.size()))] ^= char(1 << random.bounded(8));
        writeFile(path(), damaged);
        const TypingJournal::Replay replay = TypingJournal::replay(path());
        SCOPED_TRACE(trial);
        ASSERT_LE(replay.records.size(), written.size());
        EXPECT_EQ(replay.records, written.mid(0, replay.records.size()));
        // The damaged header is someone else's file.
        if (damaged.left(16) != whole.left(16)) {
            EXPECT_EQ(replay.status, TypingJournal::Replay::Status::Foreign);
        }
    }
}

TEST_F(TypingJournalTest, ASaveDropsOnlyWhatItsSnapshotHeldNotTheTypingSince)
{
    TypingJournal journal(path());
    journal.append(0, "saved");
    const quint64 changed = journal.append(1, "sav");
    const quint64 snapshot = journal.lastSequence(); // the save takes the rows here
    const quint64 later1 = journal.append(1, "saved later");
    const quint64 later2 = journal.append(2, "new row");
    ASSERT_TRUE(journal.dropThrough(snapshot));
    const QList<Record> expected = {{later1, 1, "saved later"}, {later2, 2, "new row"}};
    EXPECT_EQ(TypingJournal::replay(path()).records, expected);
    // A save of an even older snapshot changes nothing.
    ASSERT_TRUE(journal.dropThrough(changed - 1));
    EXPECT_EQ(TypingJournal::replay(path()).records, expected);
    journal.compact();
    EXPECT_EQ(TypingJournal::replay(path()).records, expected);
}

TEST_F(TypingJournalTest, AJournalOverTheLimitIsRewrittenAsOneRecordPerRowWithNoFileLeftBehind)
{
    FakeClock clock;
    TypingJournal journal(path(), clock.now());
    QList<Record> latest(10);
    for (int i = 0; journal.fileSize() <= TypingJournal::kCompactionBytes; ++i) {
        const QString text = QString("row %1, change %2 ").arg(i % 10).arg(i).repeated(20);
        latest[i % 10] = {journal.append(i % 10, text), i % 10, text};
    }
    std::sort(latest.begin(), latest.end(),
              [](const Record& a, const Record& b) { return a.sequence < b.sequence; });
    ASSERT_TRUE(journal.sync());
    EXPECT_LT(journal.fileSize(), 10 * 1024);
    EXPECT_EQ(TypingJournal::replay(path()).records, latest);
    EXPECT_EQ(entries(), QStringList{"lesson.journal"});
    EXPECT_FALSE(journal.hasUnsyncedRecords());
    // Appending goes on into the new file.
    const quint64 next = journal.append(3, "after");
    EXPECT_GT(next, latest.last().sequence);
    EXPECT_EQ(TypingJournal::replay(path()).records.last(), (Record{next, 3, "after"}));
}

TEST_F(TypingJournalTest, SyncsAtMostOnceASecondWhileRecordsAreUnsynced)
{
    for (const auto syncing :
         {TypingJournal::Syncing::OnCallingThread, TypingJournal::Syncing::OnWriterThread}) {
        SCOPED_TRACE(int(syncing));
        QFile::remove(path());
        FakeClock clock;
        {
            TypingJournal journal(path(), clock.now(), syncing);
            EXPECT_FALSE(journal.syncIfDue()); // nothing to sync
            journal.append(0, "a");
            EXPECT_TRUE(journal.syncIfDue());
            journal.append(0, "ab");
            clock.time += std::chrono::milliseconds(999);
            EXPECT_FALSE(journal.syncIfDue());
            EXPECT_TRUE(journal.hasUnsyncedRecords());
            clock.time += std::chrono::milliseconds(1);
            EXPECT_TRUE(journal.syncIfDue());
            EXPECT_FALSE(journal.syncIfDue());
            journal.append(0, "abc");
            EXPECT_TRUE(journal.sync()); // a row change does not wait
            EXPECT_FALSE(journal.hasUnsyncedRecords());
            EXPECT_EQ(journal.state(), TypingJournal::State::Writing);
        }
        EXPECT_EQ(TypingJournal::replay(path()).records.size(), 3);
    }
}

TEST_F(TypingJournalTest, AFileThatIsNotAJournalIsNeverWritten)
{
    const QByteArray later = QByteArray("KELMJRNL") + QByteArray::fromHex("0200000000000000");
    for (const QByteArray& content :
         {QByteArray("[00:00.000]someone's lyrics\n"), QByteArray("\x89PNG\r\n\x1a\n", 8) + "data",
          later, QByteArray("KELMJRNX")}) {
        SCOPED_TRACE(content.toStdString());
        writeFile(path(), content);
        TestSupport::LogCapture log;
        TypingJournal journal(path());
        EXPECT_EQ(journal.state(), TypingJournal::State::Refused);
        EXPECT_EQ(journal.recovered().status, TypingJournal::Replay::Status::Foreign);
        journal.append(0, "typed");
        journal.sync();
        journal.dropThrough(journal.lastSequence());
        EXPECT_FALSE(journal.compact());
        EXPECT_EQ(readFile(path()), content);
        EXPECT_EQ(entries(), QStringList{"lesson.journal"});
        EXPECT_EQ(log.lines().filter("Typing journal").size(), 1) << log.lines().join('\n').toStdString();
    }
    // A directory where the file should be.
    QDir(dir.path()).mkdir("folder.journal");
    TypingJournal journal(dir.filePath("folder.journal"));
    journal.append(0, "typed");
    EXPECT_EQ(journal.state(), TypingJournal::State::Refused);
}

TEST(TypingJournalNames, IdentitiesThatWouldLeaveTheFolderAreRefused)
{
    EXPECT_EQ(TypingJournal::fileNameFor("0a1b"), "0a1b.journal");
    for (const QString identity : {"", "../x", "a/b", "a\\b", ".hidden"})
        EXPECT_TRUE(TypingJournal::fileNameFor(identity).isNull()) << identity.toStdString();
    EXPECT_TRUE(TypingJournal::folderPath().endsWith("/journal"));
}
