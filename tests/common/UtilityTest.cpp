// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Utility.h"

#include "common/Log.h"
#include "support/TestSupport.h"

#include <QColor>
#include <gtest/gtest.h>

TEST(Utility, HexStringFromColorTruncatesEachComponent)
{
    EXPECT_EQ(Utility::hexStringFromColor(QColor::fromRgbF(0.999f, 0.0f, 1.0f)), "#FE00FF");
    EXPECT_EQ(Utility::hexStringFromColor(QColor(18, 52, 86, 10)), "#123456"); // alpha dropped
    EXPECT_EQ(Utility::hexStringFromColor(QColor::fromHsv(120, 255, 255)), "#00FF00");
    // Every 8-bit value comes back as itself, with no floating-point step lost.
    for (int v = 0; v < 256; ++v)
        ASSERT_EQ(Utility::hexStringFromColor(QColor(v, v, v)),
                  QString::asprintf("#%02X%02X%02X", v, v, v));
}

// The line goes through Kelmora's own category, which the logging rules
// silence and raise like any of Qt's.
TEST(Utility, ColorWithoutAnRgbFormGivesNothingAndOneLogLine)
{
    TestSupport::LogCapture log;
    EXPECT_FALSE(Utility::hexStringFromColor(QColor()));
    EXPECT_EQ(log.lines(), QStringList{"Color is not in an RGB color space."});
    EXPECT_STREQ(lcApp().categoryName(), "kelmora.app");
    EXPECT_FALSE(lcAudio().isDebugEnabled()) << "debugging lines show by default";

    QLoggingCategory::setFilterRules(QStringLiteral("kelmora.*=false"));
    log.clear();
    EXPECT_FALSE(Utility::hexStringFromColor(QColor()));
    EXPECT_TRUE(log.lines().isEmpty()) << "kelmora.*=false did not silence it";
    QLoggingCategory::setFilterRules(QStringLiteral("kelmora.audio.debug=true"));
    EXPECT_TRUE(lcAudio().isDebugEnabled());
    EXPECT_TRUE(lcApp().isInfoEnabled());
    QLoggingCategory::setFilterRules(QString());
}

TEST(Utility, TimesWithinAMicrosecondAreEqual)
{
    EXPECT_TRUE(Utility::isTimeInterval(1.0, 1.0000009));
    EXPECT_FALSE(Utility::isTimeInterval(1.0, 1.0000011));
    // In binary 1.000001 lies a little below 1 + 1e-6: the difference is
    // 0.99999999992e-6, below the bound, so these still count as equal.
    EXPECT_TRUE(Utility::isTimeInterval(1.0, 1.000001));
    EXPECT_TRUE(Utility::isTimeInterval(-2.0000005, -2.0));
}

TEST(Utility, SafeSubstringNeverFailsOnAShortString)
{
    EXPECT_EQ(Utility::safeSubstringToIndex(5, "abc"), "abc");
    EXPECT_EQ(Utility::safeSubstringToIndex(2, "abc"), "ab");
    EXPECT_EQ(Utility::safeSubstringToIndex(0, "abc"), "");
    EXPECT_EQ(Utility::safeSubstringToIndex(-1, "abc"), "");
    EXPECT_EQ(Utility::safeSubstringToIndex(3, QString()), "");
    const QString emoji = QString::fromUtf8("a\U0001F600b");
    EXPECT_EQ(Utility::safeSubstringToIndex(2, emoji), "a");
    EXPECT_EQ(Utility::safeSubstringToIndex(3, emoji), QString::fromUtf8("a\U0001F600"));
}
