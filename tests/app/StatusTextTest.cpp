// SPDX-License-Identifier: GPL-3.0-or-later
// The status bar's text, and the time format offered beside it.

#include "app/StatusText.h"

#include <gtest/gtest.h>

namespace {

StatusSnapshot lesson()
{
    StatusSnapshot s;
    s.audioPath = QStringLiteral("/home/learner/lessons/lesson 1.mp3");
    s.audioFormat = QStringLiteral("MP3");
    s.sampleRate = 44100.0;
    s.channelInfo = QStringLiteral("Stereo");
    s.totalSamples = 635040;
    s.duration = 14.4;
    s.segmentCount = 6;
    s.playing = true;
    s.repeatMode = true;
    return s;
}

} // namespace

TEST(StatusText, ListsFileFormatSamplesDurationSegmentsAndPlayerState)
{
    EXPECT_EQ(StatusText::build(lesson()),
              "/home/learner/lessons/lesson 1.mp3 | MP3: 44.1kHz; Stereo;Samples: 635040;"
              "Duration: 00:14 | Segments: 6 | Play | Repeat");

    StatusSnapshot s = lesson();
    s.playing = false;
    s.repeatMode = false;
    EXPECT_TRUE(StatusText::build(s).endsWith(" | Pause | Forward"));
    s.audioPath.clear();
    EXPECT_EQ(StatusText::build(s), "") << "no file open";
}

TEST(StatusText, MinutesRoundDownSecondsToTheNearestAndTheRateHasOneDecimal)
{
    StatusSnapshot s = lesson();
    s.duration = 59.6; // minutes 0, seconds round to 60 and wrap
    EXPECT_TRUE(StatusText::build(s).contains(";Duration: 00:00 |"));
    s.duration = 3600.0; // no hours field
    EXPECT_TRUE(StatusText::build(s).contains(";Duration: 60:00 |"));
    s.duration = 119.4;
    EXPECT_TRUE(StatusText::build(s).contains(";Duration: 01:59 |"));

    s.sampleRate = 22050.0;
    EXPECT_TRUE(StatusText::build(s).contains(" | MP3: 22.1kHz; Stereo;"));
    s.sampleRate = 8000.0;
    EXPECT_TRUE(StatusText::build(s).contains(" | MP3: 8.0kHz; Stereo;"));
}

TEST(StatusText, FormatTimeTruncatesEveryField)
{
    EXPECT_EQ(StatusText::formatTime(0.0), "00:00.000");
    EXPECT_EQ(StatusText::formatTime(61.9999), "01:01.999");
    EXPECT_EQ(StatusText::formatTime(3725.5), "62:05.500");
}
