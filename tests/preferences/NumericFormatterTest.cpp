// SPDX-License-Identifier: GPL-3.0-or-later
// The repeat-count field's rules: digits only, never a sixth character, and
// an empty field reads as 0.

#include "preferences/NumericFormatter.h"

#include <QVariant>
#include <gtest/gtest.h>

TEST(NumericFormatter, PartialStringsPassOnlyAsUpToFiveDigits)
{
    const NumericFormatter f;
    EXPECT_TRUE(f.isPartialStringValid("").valid);
    EXPECT_TRUE(f.isPartialStringValid("12345").valid);
    const NumericFormatter::Partial sixth = f.isPartialStringValid("123456");
    EXPECT_FALSE(sixth.valid);
    EXPECT_EQ(sixth.error, "Input must not exceed 6 digits");
    // Too long wins over not a number.
    EXPECT_EQ(f.isPartialStringValid("abcdef").error, "Input must not exceed 6 digits");
    for (const char* bad : {"12a", "-1", " 1", "1.5", "+3"}) {
        const NumericFormatter::Partial p = f.isPartialStringValid(bad);
        EXPECT_FALSE(p.valid) << bad;
        EXPECT_TRUE(p.error.isEmpty()) << bad;
    }
    // Digits of other scripts are digits to Unicode, not to the stored integer.
    EXPECT_FALSE(f.isPartialStringValid(QString::fromUtf8("１２")).valid);
    EXPECT_FALSE(f.isPartialStringValid(QString::fromUtf8("٣")).valid);
}

TEST(NumericFormatter, ValuesAndTexts)
{
    const NumericFormatter f;
    EXPECT_EQ(f.getObjectValue(""), 0);
    EXPECT_EQ(f.getObjectValue("00042"), 42);
    EXPECT_EQ(f.getObjectValue("99999"), 99999);
    QString error;
    EXPECT_FALSE(f.getObjectValue("4x", &error));
    EXPECT_EQ(error, "Invalid input: 4x");

    EXPECT_EQ(f.stringForObjectValue(20), "20");
    EXPECT_EQ(f.stringForObjectValue(qint64(12000)), "12000");
    EXPECT_EQ(f.stringForObjectValue(QStringLiteral("20")), "");
    EXPECT_EQ(f.stringForObjectValue(QVariant()), "");
}
