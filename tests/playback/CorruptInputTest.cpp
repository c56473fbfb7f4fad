// SPDX-License-Identifier: GPL-3.0-or-later
// Damaged files of every format: each variant of a small clip is analysed and
// briefly played (with a seek) on a manually clocked null output. Nothing may
// crash, hang or touch memory it does not own (the sanitizer build checks the
// last); a file that cannot be read gets a reason. The variants come from a
// fixed seed, so a failure reproduces.

#include "PlayerTestSupport.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "support/TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <thread>

using TestSupport::fixture;

namespace {

// One damage of a few kinds, weighted towards the first bytes, where headers
// and the first frame's description sit.
QByteArray mutate(QByteArray data, std::mt19937& random)
{
    auto pick = [&](qsizetype below) {
        return qsizetype(
            std::uniform_int_distribution<qsizetype>(0, std::max<qsizetype>(below, 1) - 1)(random));
    };
    auto byte = [&] { return char(std::uniform_int_distribution<int>(0, 255)(random)); };
    const qsizetype head = std::min<qsizetype>(data.size(), 512);
    switch (pick(6)) {
    case 0: // a few bytes of the header changed
        for (int i = 0, n = 1 + int(pick(8)); i < n; ++i)
            data[pick(head)] = byte();
        break;
    case 1: // a few bytes anywhere changed
        for (int i = 0, n = 1 + int(pick(32)); i < n; ++i)
            data[pick(data.size())] = byte();
        break;
    case 2: // cut short
        data.truncate(pick(data.size()));
        break;
    case 3: { // a stretch overwritten with noise
        const qsizetype at = pick(data.size()),
                        n = std::min<qsizetype>(pick(4096), data.size() - at);
        for (qsizetype i = 0; i < n; ++i)
            data[at + i] = byte();
        break;
    }
    case 4: { // a stretch repeated, as a bad join would
        const qsizetype at = pick(data.size()),
                        n = std::min<qsizetype>(pick(8192), data.size() - at);
        data.insert(pick(data.size()), data.mid(at, n));
        break;
    }
    default: // a size or count field set to an extreme
        for (int i = 0; i < 4; ++i)
            data[std::min(pick(head) + i, data.size() - 1)] = pick(2) ? char(0xff) : char(0);
        break;
    }
    return data;
}

// Pulls up to `seconds` of sound; stops early once nothing has come for a
// while (the file ended or the decode thread gave up on it).
void pullFor(PlayerTest::ManualPlayer& p, double seconds)
{
    const OutputFormat format = p.output->format();
    const auto wanted = qsizetype(seconds * format.sampleRate);
    std::vector<float> block;
    qsizetype got = 0;
    auto lastSound = std::chrono::steady_clock::now();
    while (got < wanted) {
        const qsizetype sound = p.output->pull(512, block);
        got += sound;
        if (sound > 0)
            lastSound = std::chrono::steady_clock::now();
        else if (std::chrono::steady_clock::now() - lastSound > std::chrono::milliseconds(60))
            break;
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace

TEST(CorruptInput, DamagedFilesOfEveryFormatAreRefusedOrPlayedWithoutACrash)
{
    const QStringList seeds{"small.wav",  "small.mp3",      "small_aac.m4a",
                            "small.aac",  "small_alac.m4a", "small.flac",
                            "small.aiff", "small.caf",      "small_51.wav"};
    constexpr int kVariants = 32;
    std::mt19937 random(20240607);
    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    int refused = 0, played = 0;
    for (const QString& name : seeds) {
        QFile source(fixture(name));
        ASSERT_TRUE(source.open(QIODevice::ReadOnly)) << name.toStdString();
        const QByteArray original = source.readAll();
        // The variant being tried stays here: if it brings the process down,
        // it is the input to keep.
        const QString path =
            QFileInfo(fixture(name))
                .dir()
                .filePath(QStringLiteral("corrupt-current.") + QFileInfo(name).suffix());
        for (int v = 0; v < kVariants; ++v) {
            SCOPED_TRACE(testing::Message() << name.toStdString() << ", variant " << v);
            QFile out(path);
            ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
            out.write(mutate(original, random));
            out.close();

            AudioManager engine(defaults.store(), center);
            engine.setOutputFactory([] {
                return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual, 0.0);
            });
            bool called = false;
            engine.processAudioFile(path, [&](bool) { called = true; });
            EXPECT_TRUE(called) << "the analysis never answered";
            engine.closeAudioFile();

            PlayerTest::ManualPlayer p;
            auto output = std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual, 0.0);
            p.output = output.get();
            QString error;
            p.player = AudioPlayer::create(path, std::move(output), &error);
            if (!p.player) {
                EXPECT_FALSE(error.isEmpty()) << "refused without a reason";
                ++refused;
                continue;
            }
            ++played;
            p.player->prepareToPlay();
            p.player->play();
            pullFor(p, 0.2);
            p.player->setCurrentTime(p.player->duration() / 2);
            pullFor(p, 0.1);
        }
        QFile::remove(path);
    }
    // The damage is varied enough to reach both outcomes.
    EXPECT_GT(refused, 0);
    EXPECT_GT(played, 0);
    std::printf("%d variants refused, %d played\n", refused, played);
}
