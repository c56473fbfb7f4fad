// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli play as a script would run it, on a machine without a sound
// device (the server address points nowhere), so it plays silently in real time.

#include "support/TestSupport.h"

#include <gtest/gtest.h>

namespace {

using CliRun = TestSupport::CliResult;

CliRun play(const QStringList& args)
{
    return TestSupport::runCli(QStringList{"play"} + args,
                               {{"PULSE_SERVER", "unix:/nonexistent/kelmora-test"}});
}

} // namespace

TEST(PlayCommand, PlaysASegmentTheAskedNumberOfTimesWithoutADevice)
{
    const CliRun r = play(
        {TestSupport::fixture("speech.wav"), "--segment", "0", "--rate", "3", "--repeat", "2"});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.startsWith("segment 0: 0.000 s to 2.000 s, 2 times at 3.00x"))
        << r.out.toStdString();
    EXPECT_TRUE(r.out.contains("play 2 of 2")) << r.out.toStdString();
    EXPECT_TRUE(r.out.trimmed().endsWith("done")) << r.out.toStdString();
    EXPECT_TRUE(r.err.contains("no sound device; playing silently")) << r.err.toStdString();
}

TEST(PlayCommand, RefusesBadUsageAndFilesItCannotPlay)
{
    EXPECT_EQ(play({TestSupport::fixture("speech.wav"), "--repeat", "3"}).exitCode, 2);
    EXPECT_EQ(play({TestSupport::fixture("speech.wav"), "--rate", "5"}).exitCode, 2);
    EXPECT_EQ(play({TestSupport::fixture("speech.wav"), "--segment", "-1"}).exitCode, 2);
    EXPECT_EQ(play({}).exitCode, 2);
    const CliRun beyond = play({TestSupport::fixture("speech.wav"), "--segment", "99"});
    EXPECT_EQ(beyond.exitCode, 1);
    EXPECT_TRUE(beyond.err.contains("segments (0 to")) << beyond.err.toStdString();
    const CliRun notAudio = play({TestSupport::fixture("text.mp3")});
    EXPECT_EQ(notAudio.exitCode, 1);
    EXPECT_TRUE(notAudio.err.startsWith("kelmora-cli: ")) << notAudio.err.toStdString();
}
