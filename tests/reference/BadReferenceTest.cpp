// SPDX-License-Identifier: GPL-3.0-or-later
// Files that cannot be read give one clear error naming them; cues that
// cannot be used are left out, one log line each; nothing freezes.
#include "ReferenceTestSupport.h"
#include "reference/ReferenceMapping.h"

#include <QFile>
#include <gtest/gtest.h>

using Kind = ReferenceReadError::Kind;
using ReferenceTest::timed;

TEST(BadReference, UnreadableFilesAreRefusedWithTheirNameAndTheReason)
{
    struct Case
    {
        QString fileName;
        QByteArray bytes;
        Kind kind;
        QString says;
    };
    const QList<Case> cases = {
        {"picture.srt", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), Kind::NotText,
         "is not a text file"},
        {"wide.srt",
         QByteArray("\xff\xfe"
                    "1\0\n\0",
                    6),
         Kind::NotUtf8, "is UTF-16"},
        {"latin.txt", "caf\xe9 cr\xe8me", Kind::NotUtf8, "is not UTF-8"},
        {"nothing.srt", "", Kind::Empty, "is empty"},
        {"blank.txt", " \r\n\t\n", Kind::Empty, "is empty"},
        {"lesson.doc", "words", Kind::UnknownFormat, ".txt, .srt, .vtt and .lrc"},
        {"noheader.vtt", "00:01.000 --> 00:02.000\nhi\n", Kind::NotWebVtt, "WEBVTT"},
        {"prose.srt", "just some words\n", Kind::NothingUsable, "holds no subtitles"},
        {"prose.lrc", "[ti:x]\nwords\n[00:01.000]\n", Kind::NothingUsable, "no time-stamped"},
        {"late.srt", "1\n00:10:00,000 --> 00:10:02,000\nlate\n", Kind::NothingUsable,
         "line 2 was left out: it starts at 10:00.000, when the audio ends at 1:00.000"},
    };
    QTemporaryDir folder;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.fileName.toStdString());
        ReferenceReadError error;
        EXPECT_FALSE(ReferenceTest::readAsFile(folder, c.fileName, c.bytes, 60.0, &error));
        EXPECT_EQ(error.kind, c.kind);
        EXPECT_TRUE(error.message.contains(QStringLiteral("\u201c%1\u201d").arg(c.fileName)))
            << error.message.toStdString();
        EXPECT_TRUE(error.message.contains(c.says)) << error.message.toStdString();
    }

    ReferenceReadError error;
    EXPECT_FALSE(ReferenceReader::readFile(folder.filePath("missing.srt"), 60.0, &error));
    EXPECT_EQ(error.kind, Kind::Unreadable);
    EXPECT_TRUE(error.message.contains("missing.srt"));
}

TEST(BadReference, CuesThatCannotBePlacedAreLeftOutOneLogLineEach)
{
    const QByteArray srt = "1\n00:00:06,000 --> 00:00:08,000\nlater\n\n"
                           "2\n-00:00:01,000 --> 00:00:02,000\nnegative\n\n"
                           "3\n00:00:05,000 --> 00:00:04,000\nbackwards\n\n"
                           "4\n00:00:01,000 --> 00:00:03,000\nearlier\n\n"
                           "5\n00:00:02,000 --> 00:00:04,000\noverlapping\n\n"
                           "6\n00:00:02,000 --> 00:00:04,000\noverlapping\n\n"
                           "7\n00:00:0x,000 --> 00:00:09,000\nunreadable\n\n"
                           "8\n00:00:09,000 --> 00:00:09,500\n<i></i> {\\an8}\n\n"
                           "9\n00:00:09,000 --> 00:01:30,000\nruns past the end\n\n"
                           "10\n00:01:00,000 --> 00:01:02,000\npast the end\n";
    TestSupport::LogCapture log;
    QTemporaryDir folder;
    const std::optional<ReferenceText> text =
        ReferenceTest::readAsFile(folder, "cues.srt", srt, 60.0);
    ASSERT_TRUE(text);
    // In time order; overlaps kept; an end past the audio brought back to it.
    EXPECT_EQ(text->units(),
              (QList<ReferenceUnit>{timed("earlier", 1, 3), timed("overlapping", 2, 4),
                                    timed("later", 6, 8), timed("runs past the end", 9, 60)}));
    QStringList dropped;
    for (const QString& line : log.lines()) {
        if (line.contains("was left out"))
            dropped.append(line);
    }
    // The file's order first, then the repeat found once they are in time order.
    EXPECT_EQ(dropped,
              (QStringList{
                  "cues.srt: the cue at line 6 was left out: it has a negative time",
                  "cues.srt: the cue at line 10 was left out: it ends (0:04.000) "
                  "before it starts (0:05.000)",
                  "cues.srt: the cue at line 26 was left out: its times cannot be read",
                  "cues.srt: the cue at line 30 was left out: it has no text",
                  "cues.srt: the cue at line 38 was left out: it starts at 1:00.000, "
                  "when the audio ends at 1:00.000",
                  "cues.srt: the cue at line 22 was left out: it repeats the cue before it",
              }));
    EXPECT_TRUE(log.contains("cues.srt: the cues are not in time order; read in time order"));
}

TEST(BadReference, HugeFilesAreRefusedAndLongLinesReadInLinearTime)
{
    QTemporaryDir folder;
    ReferenceReadError error;
    EXPECT_FALSE(
        ReferenceTest::readAsFile(folder, "huge.txt", QByteArray(50 << 20, 'a'), 60.0, &error));
    EXPECT_EQ(error.kind, Kind::TooLarge);
    EXPECT_TRUE(error.message.contains("\u201chuge.txt\u201d"));

    // Four megabytes on one line each, of what makes a careless scanner go
    // back over the line again and again. A quadratic reader would take
    // hours here, not the fraction of a second these take.
    const qsizetype size = 4 << 20;
    const QByteArray timing = "00:00:01,000 --> 00:00:02,000\n";
    const QByteArray vttTiming = "WEBVTT\n\n00:01.000 --> 00:02.000\n";
    const struct
    {
        QString fileName;
        QByteArray bytes;
    } cases[] = {
        {"tags.srt", timing + QByteArray("<i ").repeated(size / 3)},
        {"overrides.srt", timing + QByteArray("{\\").repeated(size / 2)},
        {"brackets.vtt", vttTiming + QByteArray("<&").repeated(size / 2)},
        {"arrows.srt", QByteArray("-->").repeated(size / 3)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.fileName.toStdString());
        const std::optional<ReferenceText> text =
            ReferenceTest::readAsFile(folder, c.fileName, c.bytes, 60.0, &error);
        if (text)
            EXPECT_EQ(text->units().size(), 1);
        else
            EXPECT_EQ(error.kind, Kind::NothingUsable);
    }

    // A book on one line, split into sentences and dealt out over a lesson.
    const std::optional<ReferenceText> book = ReferenceTest::readAsFile(
        folder, "book.txt", QByteArray("A short sentence. ").repeated(size / 18), 3600.0);
    ASSERT_TRUE(book);
    QList<double> starts;
    for (int i = 0; i < 720; ++i)
        starts.append(i * 5.0);
    const QStringList segments = ReferenceMapping::map(*book, starts, 3600.0);
    ASSERT_EQ(segments.size(), 720);
    EXPECT_TRUE(segments.front().startsWith("A short sentence. A short sentence."));
}
