// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's segment list and its settings.

#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"

#include <QObject>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

class AudioManagerSegments : public ::testing::Test
{
protected:
    void SetUp() override
    {
        bool ok = false;
        engine.processAudioFile(fixture("speech.wav"), [&](bool success) { ok = success; });
        ASSERT_TRUE(ok);
        duration = engine.duration();
        center.addObserver(Notifications::AudioManagerSegmentsDidUpdate, &observer,
                           [this](const NotificationCenter::Notification& n) { posted.append(n); });
    }

    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine{defaults.store(), center};
    double duration = 0;
    QObject observer;
    QList<NotificationCenter::Notification> posted;
};

} // namespace

TEST_F(AudioManagerSegments, UpdateAcceptsSegmentsEndingExactlyAtTheEndAndPostsOnce)
{
    const SegmentList replacement{{0.0, 3.0}, {3.0, duration - 3.0}};
    ASSERT_TRUE(engine.updateSegments(replacement));
    EXPECT_EQ(engine.segments(), replacement);
    ASSERT_EQ(posted.size(), 1);
    EXPECT_EQ(posted[0].object.value<AudioManager*>(), &engine);
    EXPECT_EQ(posted[0].userInfo.value("segments").value<SegmentList>(), replacement);

    // Order and overlap are not checked.
    const SegmentList unordered{{5.0, 1.0}, {1.0, 6.0}};
    EXPECT_TRUE(engine.updateSegments(unordered));
    EXPECT_EQ(posted.size(), 2);
}

TEST_F(AudioManagerSegments, UpdateRefusesEmptyListsAndEndsPastTheAudio)
{
    const SegmentList before = engine.segments();
    EXPECT_FALSE(engine.updateSegments({}));
    EXPECT_FALSE(engine.updateSegments({{0.0, duration + 1e-9}}));
    EXPECT_FALSE(engine.updateSegments({{0.0, duration + 5.0}, {1.0, 1.0}}));
    EXPECT_FALSE(engine.updateSegments({{0.0, 1.0}, {duration - 1.0, 1.5}}));
    EXPECT_EQ(engine.segments(), before);
    EXPECT_TRUE(posted.isEmpty());
}

TEST_F(AudioManagerSegments, TimestampOfAnIndexOrZeroWithALogLine)
{
    ASSERT_TRUE(engine.updateSegments({{0.0, 2.0}, {2.5, 3.0}}));
    EXPECT_EQ(engine.numberOfSegments(), 2);
    EXPECT_EQ(engine.getTimestampForIndex(1), 2.5);

    TestSupport::LogCapture log;
    EXPECT_EQ(engine.getTimestampForIndex(-1), 0.0);
    EXPECT_EQ(engine.getTimestampForIndex(2), 0.0);
    EXPECT_EQ(log.lines(), (QStringList{"Invalid segment index: -1", "Invalid segment index: 2"}));
}

TEST_F(AudioManagerSegments, MergeJoinsNeighboursCloserThanTheMinimumGap)
{
    // The minimum gap is 1.0 s when the key is absent.
    ASSERT_TRUE(engine.updateSegments({{0.0, 2.0}, {2.5, 1.0}, {5.0, 1.0}, {6.2, 1.0}}));
    TestSupport::LogCapture log;
    engine.mergeSegments();
    const SegmentList expected{{0.0, 3.5}, {5.0, 2.2}};
    ASSERT_EQ(engine.segments().size(), 2);
    EXPECT_EQ(engine.segments()[0], expected[0]);
    EXPECT_NEAR(engine.segments()[1].duration, 2.2, 1e-9);
    ASSERT_EQ(log.lines().size(), 2);
    EXPECT_EQ(log.lines()[0], "Merged segments: 0.00-2.00 and 2.50-3.50 (gap: 0.50)");
    EXPECT_EQ(log.lines()[1], "Merged segments: 5.00-6.00 and 6.20-7.20 (gap: 0.20)");

    ASSERT_TRUE(engine.updateSegments({{1.0, 2.0}}));
    engine.mergeSegments();
    EXPECT_EQ(engine.segments(), (SegmentList{{1.0, 2.0}}));
}

TEST_F(AudioManagerSegments, OptimizeJoinsSegmentsLessThanATenthApart)
{
    ASSERT_TRUE(engine.updateSegments({{0.0, 1.0}, {1.05, 1.0}, {2.1, 1.0}, {3.5, 1.0}}));
    engine.optimizeSegmentBoundaries();
    ASSERT_EQ(engine.segments().size(), 2);
    EXPECT_EQ(engine.segments()[0].start, 0.0);
    EXPECT_NEAR(engine.segments()[0].end(), 3.1, 1e-9);
    EXPECT_EQ(engine.segments()[1], (Segment{3.5, 1.0}));
}

TEST(AudioManagerSettings, StoredValuesAreRaisedOrReplacedAsTheEngineRequires)
{
    TestSupport::TempDefaults defaults;
    regDefaultPreference(defaults.store());
    NotificationCenter center;
    {
        AudioManager fresh(defaults.store(), center);
        EXPECT_EQ(fresh.minSegmentDuration(), 1.0);
        EXPECT_EQ(fresh.sensitivity(), 1);
        EXPECT_EQ(fresh.minGapDuration(), 1.0); // absent key
        EXPECT_EQ(fresh.currentRate(), 1.0f);
        EXPECT_EQ(fresh.maxRepeatPlayTimes(), 20.0f);
    }

    using namespace PreferenceKeys;
    Defaults& d = defaults.store();
    const struct
    {
        double minSegment, sensitivity, speed, repeats;
        double wantMinSegment;
        qint64 wantSensitivity;
        float wantSpeed, wantRepeats;
    } cases[] = {
        {0.5, 0.0, 0.2, 12000, 1.0, 1, 1.0f, 20.0f}, // floors; out-of-range speed and repeats
        {2.5, 2.7, 3.5, 0, 2.5, 2, 1.0f, 20.0f},
        {1.0, 2.0, 0.3, 9999, 1.0, 2, 0.3f, 9999.0f}, // the limits themselves are kept
        {10.0, 1.0, 3.0, 1, 10.0, 1, 3.0f, 1.0f},
    };
    for (const auto& c : cases) {
        d.setDouble(c.minSegment, MinSegmentDuration);
        d.setDouble(c.sensitivity, Sensitivity);
        d.setDouble(c.speed, PlaySpeed);
        d.setInteger(qint64(c.repeats), MaxRepeatPlayTimes);
        AudioManager engine(d, center);
        EXPECT_EQ(engine.minSegmentDuration(), c.wantMinSegment);
        EXPECT_EQ(engine.sensitivity(), c.wantSensitivity);
        EXPECT_EQ(engine.currentRate(), c.wantSpeed);
        EXPECT_EQ(engine.maxRepeatPlayTimes(), c.wantRepeats);
    }
}

TEST(AudioManagerSettings, SaveWritesDoublesThatAFreshEngineReadsBack)
{
    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine(defaults.store(), center);
    engine.saveSettings(2.5, 2, 0.75);
    EXPECT_EQ(engine.minSegmentDuration(), 2.5);
    EXPECT_EQ(engine.sensitivity(), 2);
    EXPECT_EQ(engine.currentRate(), 0.75f);

    defaults.reopen();
    using namespace PreferenceKeys;
    EXPECT_EQ(defaults.store().doubleForKey(MinSegmentDuration), 2.5);
    EXPECT_EQ(defaults.store().doubleForKey(Sensitivity), 2.0);
    EXPECT_EQ(defaults.store().doubleForKey(PlaySpeed), 0.75);
    EXPECT_FALSE(defaults.store().hasUserValue(MinGapDuration));
    AudioManager next(defaults.store(), center);
    EXPECT_EQ(next.minSegmentDuration(), 2.5);
    EXPECT_EQ(next.sensitivity(), 2);
    EXPECT_EQ(next.currentRate(), 0.75f);

    next.resetToDefaultSettings();
    EXPECT_EQ(next.minSegmentDuration(), 1.0);
    EXPECT_EQ(next.sensitivity(), 1);
    EXPECT_EQ(next.currentRate(), 1.0f);
    EXPECT_EQ(defaults.store().doubleForKey(PlaySpeed), 1.0);
}

TEST(AudioManagerSettings, NewSettingsTakeEffectAtTheNextLoad)
{
    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine(defaults.store(), center);
    bool ok = false;
    engine.processAudioFile(fixture("speech.wav"), [&](bool s) { ok = s; });
    ASSERT_TRUE(ok);
    ASSERT_EQ(engine.segments().size(), 5);

    engine.saveSettings(4.0, 1, 1.0);
    EXPECT_EQ(engine.segments().size(), 5) << "existing segments are not recomputed";
    engine.processAudioFile(fixture("speech.wav"), [&](bool s) { ok = s; });
    ASSERT_TRUE(ok);
    EXPECT_LT(engine.segments().size(), 5);
    for (qsizetype i = 0; i + 1 < engine.segments().size(); ++i)
        EXPECT_GE(engine.segments()[i + 1].start - engine.segments()[i].start, 4.0 - 1e-6);
}
