// SPDX-License-Identifier: GPL-3.0-or-later
// Pauses found in hand-made loudness lists, and boundaries moved into them.

#include "align/PauseSnapper.h"

#include <gtest/gtest.h>

namespace {

// 20 ms frames: `loud` for speech, `quiet` for a pause; runs of frames given
// as (count, level) pairs.
QList<float> frames(std::initializer_list<std::pair<int, float>> runs)
{
    QList<float> out;
    for (const auto& [count, level] : runs)
        out.append(QList<float>(count, level));
    return out;
}

constexpr float loud = 0.3f;
constexpr float quiet = 0.001f;

} // namespace

TEST(PauseSnapper, FindsPausesOfAFifthOfASecondAndSnapsToTheNearest)
{
    // 0.5 s lead-in, speech, pauses of 0.2 s (kept), 0.18 s (too short) and
    // 1.0 s, speech, and a tail: frame i is at i * 0.02 s.
    const QList<float> loudness = frames({{25, quiet},
                                          {100, loud},
                                          {10, quiet}, // 2.5-2.7 s
                                          {100, loud},
                                          {9, quiet}, // 4.7-4.88 s, too short
                                          {100, loud},
                                          {50, quiet}, // 6.88-7.88 s
                                          {100, loud},
                                          {30, quiet}});
    const PauseSnapper snapper(loudness, double(loudness.size()) * 0.02);
    ASSERT_EQ(snapper.pauses().size(), 2) << "the lead-in and the tail are not pauses";
    EXPECT_NEAR(snapper.pauses()[0].start, 2.5, 1e-9);
    EXPECT_NEAR(snapper.pauses()[0].end, 2.7, 1e-9);
    EXPECT_NEAR(snapper.pauses()[1].middle(), 7.38, 1e-9);
    EXPECT_TRUE(snapper.hasSpeech());
    EXPECT_NEAR(snapper.speechStart(), 0.5 - PauseSnapper::kSpeechMargin, 1e-9);
    EXPECT_NEAR(snapper.speechEnd(), 9.88 + PauseSnapper::kSpeechMargin, 1e-9);

    const struct
    {
        double estimate;
        double time;
        bool uncertain;
    } cases[] = {
        {2.6, 2.6, false},  // inside: to the middle
        {2.2, 2.6, true},   // 0.3 s before the pause, 0.4 s from its middle
        {2.4, 2.6, false},  // 0.1 s before it
        {3.25, 2.6, true},  // 0.55 s after it: still found, far
        {3.4, 3.4, true},   // 0.7 s after it: none near, left where it was
        {4.8, 4.8, true},   // in the short quiet: no pause there
        {6.6, 7.38, true},  // 0.28 s before the long pause: its middle is far
        {7.3, 7.38, false}, // inside the long pause
    };
    for (const auto& c : cases) {
        const PauseSnapper::Snapped s = snapper.snap(c.estimate);
        EXPECT_NEAR(s.time, c.time, 1e-9) << c.estimate;
        EXPECT_EQ(s.uncertain, c.uncertain) << c.estimate;
    }

    // Silence throughout has no speech and no pause: everything is uncertain.
    const PauseSnapper silent(frames({{200, 0.0f}}), 4.0);
    EXPECT_FALSE(silent.hasSpeech());
    EXPECT_TRUE(silent.pauses().isEmpty());
    EXPECT_DOUBLE_EQ(silent.speechStart(), 0.0);
    EXPECT_DOUBLE_EQ(silent.speechEnd(), 4.0);
    EXPECT_TRUE(silent.snap(2.0).uncertain);
}
