// SPDX-License-Identifier: GPL-3.0-or-later
// Each reader on real files with the quirks found in the wild.
#include "ReferenceTestSupport.h"

#include <gtest/gtest.h>

using ReferenceTest::timed;
using ReferenceTest::untimed;

namespace {

struct ReaderCase
{
    const char* what;
    QString fileName;
    QByteArray bytes;
    QList<ReferenceUnit> units;
};

void expectReadsAs(const QList<ReaderCase>& cases, double duration = 4000.0)
{
    QTemporaryDir folder;
    for (const ReaderCase& c : cases) {
        SCOPED_TRACE(c.what);
        ReferenceReadError error;
        const std::optional<ReferenceText> text =
            ReferenceTest::readAsFile(folder, c.fileName, c.bytes, duration, &error);
        ASSERT_TRUE(text) << error.message.toStdString();
        EXPECT_EQ(text->sourceName(), c.fileName);
        EXPECT_EQ(text->units(), c.units);
    }
}

} // namespace

TEST(ReferenceReader, SubRip)
{
    expectReadsAs({
        {"byte-order mark, CR LF, comma before the milliseconds",
         "a.srt",
         "\xEF\xBB\xBF"
         "1\r\n00:00:01,000 --> 00:00:02,500\r\nHello there\r\n\r\n"
         "2\r\n00:00:03,000 --> 00:00:04,000\r\nGeneral Kenobi\r\n",
         {timed("Hello there", 1.0, 2.5), timed("General Kenobi", 3.0, 4.0)}},
        {"LF, dot before the milliseconds, short fraction, hours, lines joined",
         "b.SRT",
         "1\n00:00:01.000 --> 00:00:02.000\nFirst line\n  second   line \n\n"
         "2\n01:00:00.5 --> 01:00:01.25\nlate\n",
         {timed("First line second line", 1.0, 2.0), timed("late", 3600.5, 3601.25)}},
        {"tags and overrides",
         "c.srt",
         "1\n00:00:01,000 --> 00:00:02,000\n{\\an8}<i>Italic</i> <B>bold</B>\n"
         "<font color=\"#ff0000\">red</font> <u>x</u><3, a < b and c > d\n",
         {timed("Italic bold red x<3, a < b and c > d", 1.0, 2.0)}},
        {"no blank line before a number, CR only, coordinates, no final break",
         "d.srt",
         "1\r00:00:01,000 --> 00:00:02,000 X1:100 X2:600 Y1:10 Y2:50\rOne\r2\r"
         "00:00:03,000 --> 00:00:04,000\rTwo",
         {timed("One", 1.0, 2.0), timed("Two", 3.0, 4.0)}},
        {"byte-order marks left inside by joining files",
         "f.srt",
         "1\n00:00:01,000 --> 00:00:02,000\nOne\n\xEF\xBB\xBF"
         "2\n00:00:03,000 --> 00:00:04,000\n\xEF\xBB\xBFTwo\n",
         {timed("One", 1.0, 2.0), timed("Two", 3.0, 4.0)}},
        {"a text that is a number stays",
         "e.srt",
         "1\n00:00:01,000 --> 00:00:02,000\n1984\n\n2\n00:00:03,000 --> 00:00:04,000\nyes\n",
         {timed("1984", 1.0, 2.0), timed("yes", 3.0, 4.0)}},
    });
}

TEST(ReferenceReader, WebVtt)
{
    expectReadsAs({
        {"header, notes, style, region, identifiers, settings, tags, references",
         "a.vtt",
         "WEBVTT - Lesson 4\nKind: captions\nLanguage: en\n\n"
         "NOTE a comment\nover two lines with 00:00.000 --> 00:01.000\n\n"
         "STYLE\n::cue { color: red }\n\nREGION\nid:fred width:40%\n\n"
         "intro\n00:01.000 --> 00:02.500 align:start position:10%\n"
         "<v Roger Bingham>Hello <c.loud>world</c></v>\n\n"
         "2\n00:00:03.000 --> 00:00:04.000\n<i>one</i><00:00:03.500> two\n"
         "three &amp; four &lt;b&gt;&nbsp;five\n",
         {timed("Hello world", 1.0, 2.5), timed("one two three & four <b> five", 3.0, 4.0)}},
        {"byte-order mark, CR LF, hours",
         "b.vtt",
         "\xEF\xBB\xBFWEBVTT\r\n\r\n01:02:03.004 --> 01:02:04.000\r\nlate\r\n\r\nNOTE\r\nend\r\n",
         {timed("late", 3723.004, 3724.0)}},
    });
}

TEST(ReferenceReader, PlainTextAndLrc)
{
    expectReadsAs(
        {
            {"one unit per line with text",
             "a.txt",
             "\xEF\xBB\xBF  First line \r\n\r\nSecond\tline\n   \nThird.  Fourth?",
             {untimed("First line"), untimed("Second line"), untimed("Third. Fourth?")}},
            // A line ends at the next stamp, even one without text; the last
            // one at the end of the audio.
            {"transcript with text",
             "b.lrc",
             "[ti:Title]\n[00:01.000] one \n[00:02.500]\n[00:03.000]two  words\n",
             {timed("one", 1.0, 2.5), timed("two words", 3.0, 10.0)}},
        },
        10.0);
}
