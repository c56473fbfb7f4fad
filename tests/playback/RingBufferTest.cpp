// SPDX-License-Identifier: GPL-3.0-or-later
// The ring between the decode thread and the device, at a fresh cut: the old
// sound goes on until the new is ready, then waits for the device's new
// stream, which alone may take the new frames.

#include "audio/AudioRingBuffer.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

// Frames whose sample is their position, so what is read says where it came from.
void writeRun(AudioRingBuffer& ring, uint32_t seek, double first, int n)
{
    std::vector<float> frames(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i)
        frames[size_t(i)] = float(first + i);
    ring.write(frames.data(), n, seek, first, 1.0);
}

struct Read
{
    std::vector<float> frames;
    bool atFresh = false;
};

Read readFrom(AudioRingBuffer& ring, int n, bool crossFresh = false)
{
    Read r;
    r.frames.resize(size_t(n));
    FrameTag last;
    const qsizetype got = ring.read(r.frames.data(), n, 1.0f, 0, 99, &last, crossFresh, &r.atFresh);
    r.frames.resize(size_t(got));
    return r;
}

TEST(RingFreshCut, OldSoundPlaysOnUntilTheNewIsReadyAndOnlyTheNewStreamTakesIt)
{
    AudioRingBuffer ring(1024, 1);
    writeRun(ring, 1, 0, 100);
    EXPECT_EQ(readFrom(ring, 10).frames.front(), 0.0f);

    // Cut at the consumer (frame 10), the new sound to be ready at 30 frames.
    ring.freshCut(30);
    writeRun(ring, 2, 1000, 20);
    Read r = readFrom(ring, 10);
    ASSERT_EQ(r.frames.size(), 10u) << "the old sound stopped before the new was ready";
    EXPECT_EQ(r.frames.front(), 10.0f);
    EXPECT_FALSE(r.atFresh);
    // A new stream that asks too early gets nothing, and nothing is lost.
    EXPECT_TRUE(readFrom(ring, 10, true).frames.empty());

    writeRun(ring, 2, 1020, 20);
    r = readFrom(ring, 10);
    EXPECT_TRUE(r.frames.empty()) << "the old stream took sound past a ready fresh cut";
    EXPECT_TRUE(r.atFresh);
    r = readFrom(ring, 10, true);
    ASSERT_EQ(r.frames.size(), 10u);
    EXPECT_EQ(r.frames.front(), 1000.0f) << "the new stream does not start at the new sound";
    EXPECT_EQ(readFrom(ring, 5).frames.front(), 1010.0f) << "crossed once, the stream goes on";
}

TEST(RingFreshCut, OldFramesRunningOutNeverLeadIntoTheNewSoundInTheOldStream)
{
    AudioRingBuffer ring(1024, 1);
    writeRun(ring, 1, 0, 20);
    ring.freshCut(30);
    writeRun(ring, 2, 500, 10);
    // The old frames are played to their end, then silence while the new
    // are made, never the first of them.
    EXPECT_EQ(readFrom(ring, 50).frames.size(), 20u);
    EXPECT_TRUE(readFrom(ring, 10).frames.empty());
    writeRun(ring, 2, 510, 20);
    Read r = readFrom(ring, 10);
    EXPECT_TRUE(r.frames.empty());
    EXPECT_TRUE(r.atFresh);
    EXPECT_EQ(readFrom(ring, 10, true).frames.front(), 500.0f);

    // A later plain seek forgets a fresh cut: its frames follow as usual.
    ring.freshCut(30);
    ring.flush();
    writeRun(ring, 3, 7000, 5);
    EXPECT_EQ(readFrom(ring, 5).frames.front(), 7000.0f);
}

} // namespace
