// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/Defaults.h"

#include "support/TestSupport.h"

#include <gtest/gtest.h>

using TestSupport::TempDefaults;

TEST(Defaults, AbsentKeysReadAsZeroNoAndEmpty)
{
    TempDefaults t;
    Defaults& d = t.store();
    EXPECT_EQ(d.doubleForKey("missing"), 0.0);
    EXPECT_EQ(d.integerForKey("missing"), 0);
    EXPECT_FALSE(d.boolForKey("missing"));
    EXPECT_TRUE(d.stringForKey("missing").isEmpty());
    EXPECT_TRUE(d.dataForKey("missing").isEmpty());
    EXPECT_FALSE(d.objectForKey("missing").isValid());
}

TEST(Defaults, RegisteredValuesAnswerOnlyUntilTheUserSetsOne)
{
    TempDefaults t;
    Defaults& d = t.store();
    d.registerDefaults({{"speed", 1.0}, {"flag", true}});
    EXPECT_EQ(d.doubleForKey("speed"), 1.0);
    EXPECT_TRUE(d.boolForKey("flag"));
    EXPECT_FALSE(d.hasUserValue("speed"));

    d.setDouble(2.5, "speed");
    d.setBool(false, "flag");
    d.registerDefaults({{"speed", 1.5}}); // registering again changes nothing for the user
    EXPECT_EQ(d.doubleForKey("speed"), 2.5);
    EXPECT_FALSE(d.boolForKey("flag"));

    d.removeObject("speed");
    EXPECT_EQ(d.doubleForKey("speed"), 1.5);
}

TEST(Defaults, UserValuesSurviveARestartButRegistrationsDoNot)
{
    TempDefaults t;
    t.store().registerDefaults({{"registered", 3}});
    t.store().setDouble(0.75, "rate");
    t.store().setInteger(12000, "repeats");
    t.store().setBool(true, "on");
    t.store().setObject(QByteArray("\x00\x01\xff", 3), "blob");
    ASSERT_TRUE(t.store().synchronize());

    t.reopen();
    Defaults& d = t.store();
    EXPECT_EQ(d.doubleForKey("rate"), 0.75);
    EXPECT_EQ(d.integerForKey("repeats"), 12000);
    EXPECT_TRUE(d.boolForKey("on"));
    EXPECT_EQ(d.dataForKey("blob"), QByteArray("\x00\x01\xff", 3));
    EXPECT_FALSE(d.objectForKey("registered").isValid());
    const QByteArray onDisk = TestSupport::readFile(t.path());
    EXPECT_TRUE(onDisk.contains("rate"));
    EXPECT_FALSE(onDisk.contains("registered"));
}

TEST(Defaults, ValuesOfTheWrongTypeReadAsZeroWithoutFailing)
{
    TempDefaults t;
    TestSupport::writeFile(t.path(),
                           "[General]\nkPlaySpeed=fast\nkMaxRepeatPlayTimes=@ByteArray(xyz)\n"
                           "kShowStatusBar=maybe\nnumberText=\" 2.5 \"\n");
    t.reopen();
    Defaults& d = t.store();
    EXPECT_EQ(d.doubleForKey("kPlaySpeed"), 0.0);
    EXPECT_EQ(d.integerForKey("kMaxRepeatPlayTimes"), 0);
    EXPECT_FALSE(d.boolForKey("kShowStatusBar"));
    EXPECT_EQ(d.doubleForKey("numberText"), 2.5);
}

TEST(Defaults, SynchronizeReportsAnUnwritableFile)
{
    TempDefaults t;
    Defaults unwritable(QStringLiteral("/proc/kelmora-cannot-write-here/settings.ini"));
    unwritable.setDouble(1.0, "x");
    EXPECT_FALSE(unwritable.synchronize());
}
