// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/TranscriptionManager.h"

#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "support/TestSupport.h"
#include "transcript/LrcLine.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cmath>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <utility>

using TestSupport::LogCapture;
using TestSupport::readFile;
using TestSupport::writeFile;

namespace {

class TranscriptionManagerTest : public ::testing::Test
{
protected:
    // The length of the "open audio" the loader asks for.
    double total = 0.0;
    TranscriptionManager store{[this] { return total; }};
    QTemporaryDir dir;

    QString path(const QString& name) const { return dir.filePath(name); }

    // Stages one LRC line per row, as the session does before a save.
    void stage(const QList<double>& starts, const QStringList& texts)
    {
        store.clearAllTranscriptions();
        for (qsizetype i = 0; i < texts.size(); ++i)
            store.setTranscription(Lrc::formatLine(starts[i], texts[i]), i);
    }
};

} // namespace

TEST_F(TranscriptionManagerTest, SettingARowPastTheEndGrowsTheListWithEmptyRows)
{
    EXPECT_FALSE(store.segments().has_value());
    store.setTranscription("third", 2);
    store.setTranscription("ignored", -1);
    EXPECT_EQ(store.transcriptions(), (QStringList{"", "", "third"}));
    EXPECT_EQ(store.transcriptionForSegment(3), "");
    EXPECT_EQ(store.transcriptionForSegment(-1), "");

    store.clearAllSegments(); // nothing to clear, no list made
    EXPECT_FALSE(store.segments().has_value());
}

TEST_F(TranscriptionManagerTest, ExportNumbersEveryRowAndKeepsTheLastLineFeed)
{
    EXPECT_EQ(store.exportToText(), "");
    store.setTranscriptions({"first", "", "third"});
    EXPECT_EQ(store.exportToText(), "1. first\n2. \n3. third\n");
}

TEST_F(TranscriptionManagerTest, SavedFileIsUtf8WithoutBomOrFinalLineFeed)
{
    LogCapture log;
    stage({0.0, 1.001, 12.34}, {"héllo", "", "日本語 text"});
    ASSERT_TRUE(store.saveTranscriptionsToFile(path("t")));
    EXPECT_EQ(readFile(path("t")),
              QString("[00:00.000]héllo\n[00:01.001]\n[00:12.340]日本語 text").toUtf8());
    EXPECT_TRUE(log.contains("Successfully wrote to file."));
    // Only the target is left in the folder: no temporary file.
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"t"});

    store.clearAllTranscriptions();
    ASSERT_TRUE(store.saveTranscriptionsToFile(path("t")));
    EXPECT_EQ(readFile(path("t")), "");
    store.setTranscriptions({""});
    ASSERT_TRUE(store.saveTranscriptionsToFile(path("t")));
    EXPECT_EQ(readFile(path("t")), "");
    // Elements are written as they are: the manager adds no stamps.
    store.setTranscriptions({"plain", "text\n"});
    ASSERT_TRUE(store.saveTranscriptionsToFile(path("t")));
    EXPECT_EQ(readFile(path("t")), "plain\ntext\n");
}

TEST_F(TranscriptionManagerTest, RoundTripKeepsRowsTextsAndStamps)
{
    total = 20.0;
    // The engine's cuts are float32: 4.72f is 4.7199998 s and is truncated.
    stage({0.0, 4.72f, 12.34}, {"zero", "", "  twelve\t"});
    ASSERT_TRUE(store.saveTranscriptionsToFile(path("t")));

    TranscriptionManager reader([] { return 20.0; });
    ASSERT_TRUE(reader.loadTranscriptionsFromFile(path("t")));
    EXPECT_EQ(reader.transcriptions(), (QStringList{"zero", "", "twelve"}));
    ASSERT_TRUE(reader.segments().has_value());
    const SegmentList& s = *reader.segments();
    ASSERT_EQ(s.size(), 3);
    EXPECT_EQ(s[0].start, 0.0);
    EXPECT_DOUBLE_EQ(s[1].start, 4.719);
    EXPECT_DOUBLE_EQ(s[2].start, 12.34);
    EXPECT_DOUBLE_EQ(s[2].end(), 20.0);
    // Nothing in the file is lost if the rows are written over it.
    EXPECT_TRUE(reader.loadedWhole());
    EXPECT_EQ(reader.textsPerSegment(), reader.transcriptions());
}

TEST_F(TranscriptionManagerTest, AThousandSaveLoadCyclesLeaveEveryStampAsItWas)
{
    // A lesson of 98 minutes, 300 rows, every millisecond digit in use: the
    // session's road each time, the stamps read from the file staged again
    // as the rows' starts and saved over it.
    total = 98 * 60.0;
    QStringList lines;
    for (qint64 i = 0, ms = 0; i < 300; ++i, ms += 19'000 + (i * 7919) % 1000)
        lines << QString::asprintf("[%02lld:%02lld.%03lld]row %lld", ms / 60'000, ms / 1000 % 60,
                                   ms % 1000, i);
    lines[7] = "[02:10.279]the stamp that drifted";
    const QByteArray original = lines.join('\n').toUtf8();
    const QString file = path("lesson");
    writeFile(file, original);

    LogCapture quiet; // the reader logs every line
    for (int cycle = 0; cycle < 1000; ++cycle) {
        ASSERT_TRUE(store.loadTranscriptionsFromFile(file));
        ASSERT_EQ(store.segments()->size(), 300);
        QList<double> starts;
        for (const Segment& segment : *store.segments())
            starts << segment.start;
        const QStringList texts = store.transcriptions();
        stage(starts, texts);
        ASSERT_TRUE(store.saveTranscriptionsToFile(file));
        ASSERT_EQ(readFile(file), original) << "cycle " << cycle;
        quiet.clear();
    }
}

TEST(LrcLine, AFloat32StartIsTruncatedAsItAlwaysWas)
{
    // Every start the engine can cut, to 99 minutes (frames of 0.02f s),
    // gets the milliseconds of its exact value truncated: its decimal digits
    // cut after the third.
    for (qint64 frame = 0; frame < 99 * 60 * 50; ++frame) {
        const double start = static_cast<float>(frame) * 0.02f;
        const QString exact = QString::asprintf("%.15f", start);
        const qint64 whole = exact.section('.', 0, 0).toLongLong();
        const QString expected = QString::asprintf("[%02lld:%02lld.", whole / 60, whole % 60) +
                                 exact.section('.', 1).left(3) + "]";
        ASSERT_EQ(Lrc::formatLine(start, QString()), expected) << "frame " << frame;
    }
    EXPECT_EQ(Lrc::formatLine(4.72f, "x"), "[00:04.719]x");
    // Below zero or not a number is stamped at the start.
    EXPECT_EQ(Lrc::formatLine(-0.5, "x"), "[00:00.000]x");
    EXPECT_EQ(Lrc::formatLine(std::nan(""), "x"), "[00:00.000]x");
}

TEST_F(TranscriptionManagerTest, MissingOrUnreadableFilesChangeNothing)
{
    store.setTranscriptions({"kept"});
    store.mutableSegments().append(Segment{0.0, 1.0});
    {
        LogCapture log;
        EXPECT_FALSE(store.loadTranscriptionsFromFile(path("absent")));
        EXPECT_EQ(log.lines(), QStringList{"Error file path: (null)"});
    }
    {
        LogCapture log;
        writeFile(path("latin1"), "[00:00.000]caf\xE9");
        EXPECT_FALSE(store.loadTranscriptionsFromFile(path("latin1")));
        ASSERT_EQ(log.lines().size(), 1);
        EXPECT_EQ(log.lines()[0],
                  QString::fromUtf8("Error reading file: The file \u201clatin1\u201d "
                                    "couldn\u2019t be opened using text encoding "
                                    "Unicode (UTF-8)."));
    }
    {
        LogCapture log;
        EXPECT_FALSE(store.loadTranscriptionsFromFile(dir.path())); // a folder
        ASSERT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(log.lines()[0].startsWith("Error reading file: "));
    }
    // Nothing that could block or fill the memory is read: a FIFO with no
    // writer (a blocking open would wait for ever), a device that never ends,
    // a file over the limit (sparse, so it costs no disk).
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("fifo")).constData(), 0600), 0);
    {
        QFile big(path("big"));
        ASSERT_TRUE(big.open(QIODevice::WriteOnly));
        ASSERT_TRUE(big.resize(50 * 1024 * 1024));
    }
    using Fault = TranscriptionManager::LoadFault;
    const std::pair<QString, Fault> refused[] = {{path("fifo"), Fault::NotARegularFile},
                                                 {"/dev/zero", Fault::NotARegularFile},
                                                 {dir.path(), Fault::NotARegularFile},
                                                 {path("big"), Fault::TooLarge}};
    for (const auto& [file, fault] : refused) {
        SCOPED_TRACE(file.toStdString());
        LogCapture log;
        EXPECT_FALSE(store.loadTranscriptionsFromFile(file));
        EXPECT_EQ(store.lastLoadFault(), fault);
        EXPECT_TRUE(log.contains("Error reading file: " + store.lastError()));
    }
    EXPECT_EQ(store.transcriptions(), QStringList{"kept"});
    EXPECT_EQ(*store.segments(), SegmentList{(Segment{0.0, 1.0})});
}

TEST_F(TranscriptionManagerTest, EmptyFileAndFileWithoutStampsGiveEmptyLists)
{
    // A load replaces what was staged, segments included.
    store.setTranscriptions({"old"});
    store.mutableSegments() = {{0.0, 1.0}, {1.0, 1.0}};
    writeFile(path("empty"), "");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("empty")));
    EXPECT_TRUE(store.transcriptions().isEmpty());
    ASSERT_TRUE(store.segments().has_value());
    EXPECT_TRUE(store.segments()->isEmpty());

    store.setTranscriptions({"old"});
    writeFile(path("words"), "just words\n[ti:title]\n[length:03:20]\n");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("words")));
    EXPECT_TRUE(store.transcriptions().isEmpty());
}

TEST_F(TranscriptionManagerTest, ByteOrderMarkAndMixedLineEndings)
{
    total = 30.0;
    writeFile(path("mixed"),
              "\xEF\xBB\xBF[ti:After a BOM]\r\n[00:01.000]crlf\r\n[00:02.000]cr\r"
              "[00:03.000]ls\xE2\x80\xA8[00:04.000]ps\xE2\x80\xA9[00:05.000]nel\xC2\x85"
              "[00:06.000]lf\n\r\n\r\n[00:07.000]end");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("mixed")));
    EXPECT_EQ(store.transcriptions(), (QStringList{"crlf", "cr", "ls", "ps", "nel", "lf", "end"}));
    EXPECT_EQ(store.segments()->size(), 7);
    EXPECT_EQ(store.segments()->last(), (Segment{7.0, 23.0}));
}

TEST_F(TranscriptionManagerTest, TenMegabytesOnOneLine)
{
    total = 60.0;
    QByteArray big = "[00:01.000]";
    big += QByteArray(10 * 1024 * 1024, 'x');
    big += "\n[00:02.000]next";
    writeFile(path("big"), big);
    LogCapture log;
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("big")));
    ASSERT_EQ(store.transcriptions().size(), 2);
    EXPECT_EQ(store.transcriptions()[0].size(), 10 * 1024 * 1024);
    EXPECT_EQ(store.transcriptions()[1], "next");

    // The same length of text with no stamp at all is skipped.
    writeFile(path("big"), QByteArray(10 * 1024 * 1024, '['));
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("big")));
    EXPECT_TRUE(store.transcriptions().isEmpty());
}

TEST_F(TranscriptionManagerTest, StampsBeyondTheAudioStopTheSegmentsButKeepTheTexts)
{
    total = 3.0;
    writeFile(path("long"), "[00:00.000]a\n[00:02.000]b\n[00:04.000]c\n[00:01.000]d");
    LogCapture log;
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("long")));
    EXPECT_EQ(store.transcriptions(), (QStringList{"a", "b", "c", "d"}));
    EXPECT_EQ(*store.segments(), (SegmentList{{0.0, 2.0}, {2.0, 2.0}}));
    EXPECT_TRUE(log.contains("loadTranscriptionsFromFile:非法的分段,分段开始时间大于音频总时间"));
    EXPECT_TRUE(log.contains("2,start=2.000000,duration=2.000000"));
    // One row per segment: "c", past the end, joins the last; "d" the one
    // holding 1 s.
    EXPECT_EQ(store.textsPerSegment(), (QStringList{"a d", "b c"}));
    EXPECT_FALSE(store.loadedWhole());
}

TEST_F(TranscriptionManagerTest, LastStampAtTheVeryEndGetsNoSegment)
{
    total = 5.0;
    writeFile(path("end"), "[00:00.000]a\n[00:05.000]b");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("end")));
    EXPECT_EQ(store.transcriptions(), (QStringList{"a", "b"}));
    EXPECT_EQ(*store.segments(), SegmentList{(Segment{0.0, 5.0})});
}

TEST_F(TranscriptionManagerTest, WithNoAudioOpenOnlyAStampAtZeroGetsASegment)
{
    total = 0.0;
    writeFile(path("zero"), "[00:00.000]only");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("zero")));
    EXPECT_EQ(*store.segments(), SegmentList{(Segment{0.0, 5.0})});

    LogCapture log;
    writeFile(path("late"), "[00:00.500]late");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("late")));
    EXPECT_EQ(store.transcriptions(), QStringList{"late"});
    EXPECT_TRUE(store.segments()->isEmpty());
    EXPECT_EQ(log.lines().last(),
              "loadTranscriptionsFromFile:非法的分段,分段开始时间大于音频总时间");
}

TEST_F(TranscriptionManagerTest, RepeatedStampsAndTheirSegments)
{
    total = 10.0;
    writeFile(path("dups"), "[00:01.000]first\n[00:01.000]second\n[00:02.000]x\n[00:01.000]back");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("dups")));
    EXPECT_EQ(store.transcriptions(), (QStringList{"first", "x", "back"}));
    // "x" at 2 s is followed by 1 s: negative, no segment; the texts outnumber
    // the segments and the caller then ignores the file.
    EXPECT_EQ(*store.segments(), (SegmentList{{1.0, 1.0}, {1.0, 9.0}}));
    EXPECT_FALSE(store.loadedWhole()); // the second line was dropped
}

// Stamps running backwards leave more lines than segments: each row then
// takes its own line and the lines that got no segment of their own, so a
// save never writes a row that has no time (it would read back at 0:00).
TEST_F(TranscriptionManagerTest, LinesWithoutASegmentJoinTheRowThatHoldsTheirTime)
{
    total = 20.0;
    writeFile(path("backwards"), "[00:00.000]zero\n[00:10.000]ten\n[00:05.000]five\n"
                                 "[00:04.000]\n[00:03.000]three\n[00:02.000]two");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("backwards")));
    EXPECT_EQ(store.transcriptions().size(), 6);
    EXPECT_EQ(*store.segments(), (SegmentList{{0.0, 10.0}, {2.0, 18.0}}));
    EXPECT_EQ(store.textsPerSegment(), (QStringList{"zero", "ten five three two"}));

    writeFile(path("before"), "[00:03.000]three\n[00:01.000]one\n[00:02.000]two");
    ASSERT_TRUE(store.loadTranscriptionsFromFile(path("before")));
    EXPECT_EQ(*store.segments(), (SegmentList{{1.0, 1.0}, {2.0, 18.0}}));
    // "three" joins the last segment that has started by 3 s, before "two",
    // in the order of the file.
    EXPECT_EQ(store.textsPerSegment(), (QStringList{"one", "three two"}));
}

TEST(TranscriptionManagerDuration, ComesFromTheSharedEngineByDefault)
{
    AudioManager& engine = AudioManager::sharedInstance();
    bool loaded = false;
    engine.processAudioFile(TestSupport::fixture("silent.wav"), [&](bool ok) { loaded = ok; });
    ASSERT_TRUE(loaded);
    TestSupport::processEvents();
    ASSERT_NEAR(engine.getTotalDuration(), 3.0, 0.01);

    QTemporaryDir dir;
    const QString file = dir.filePath("t");
    writeFile(file, "[00:00.000]a\n[00:02.000]b");
    TranscriptionManager store;
    ASSERT_TRUE(store.loadTranscriptionsFromFile(file));
    ASSERT_EQ(store.segments()->size(), 2);
    // The last segment runs to the end of the engine's open audio.
    EXPECT_DOUBLE_EQ(store.segments()->last().end(), engine.getTotalDuration());
}
