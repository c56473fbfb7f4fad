// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/PracticePreferences.h"

#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace PreferenceKeys;

TEST(PracticePreferences, StoredValuesAreReadClampedOrTheirDefaults)
{
    const PracticeOptions defaults;
    {
        // Registered or absent, every setting is its default: playback as before.
        TestSupport::TempDefaults t;
        EXPECT_EQ(storedPracticeOptions(t.store()), defaults);
        regDefaultPreference(t.store());
        EXPECT_EQ(storedPracticeOptions(t.store()), defaults);
        EXPECT_EQ(defaults.repeatGap, 0.0);
        EXPECT_EQ(defaults.rewindOnResume, 0.0);
        EXPECT_EQ(defaults.hardThreshold, 0.8);
        EXPECT_FALSE(defaults.repeatUntilMovedOn || defaults.slowerFirst || defaults.holdToPlay);
    }
    const struct
    {
        QVariant number, onOff; // stored under the three numbers, and the three switches
        double gap, rewind, threshold;
        bool on;
    } cases[] = {
        {2.5, true, 2.5, 2.5, 1.0, true},
        {QStringLiteral(" 0.5 "), QStringLiteral("yes"), 0.5, 0.5, 0.5, true},
        {1.3, 0, 1.5, 1.3, 1.0, false}, // the gap to the nearest half second
        {0.2, 1, 0.0, 0.2, 0.2, true},
        {-4, QStringLiteral("no"), 0.0, 0.0, 0.0, false},
        {1e300, 2.0, 10.0, 5.0, 1.0, true},
        {QStringLiteral("nan"), QStringLiteral("maybe"), 0.0, 0.0, 0.8, false},
        {QVariantList{1, 2}, QVariantList{true}, 0.0, 0.0, 0.8, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.number.toString().toStdString() + " / " + c.onOff.toString().toStdString());
        TestSupport::TempDefaults t;
        regDefaultPreference(t.store());
        for (const char* key : {RepeatGap, RewindOnResume, HardSentenceThreshold})
            t.store().setObject(c.number, key);
        for (const char* key : {RepeatUntilMovedOn, SlowerFirst, HoldToPlay})
            t.store().setObject(c.onOff, key);
        const PracticeOptions read = storedPracticeOptions(t.store());
        EXPECT_EQ(read.repeatGap, c.gap);
        EXPECT_EQ(read.rewindOnResume, c.rewind);
        EXPECT_EQ(read.hardThreshold, c.threshold);
        EXPECT_EQ(read.repeatUntilMovedOn, c.on);
        EXPECT_EQ(read.slowerFirst, c.on);
        EXPECT_EQ(read.holdToPlay, c.on);
    }
}
