// SPDX-License-Identifier: GPL-3.0-or-later
// Loading real files made by the test set-up through the engine's one entry
// point, as the window does.

#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "common/NotificationCenter.h"
#include "support/TestSupport.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>

using TestSupport::fixture;

namespace {

class AudioManagerAnalysis : public ::testing::Test
{
protected:
    bool load(const QString& name)
    {
        bool result = false;
        bool called = false;
        engine.processAudioFile(fixture(name), [&](bool ok) {
            called = true;
            result = ok;
        });
        EXPECT_TRUE(called) << "the completion runs before processAudioFile returns";
        return result;
    }

    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine{defaults.store(), center};
};

} // namespace

TEST_F(AudioManagerAnalysis, SameSpeechInEveryFormatCutsTheSameSegments)
{
    ASSERT_TRUE(load("speech.wav"));
    const SegmentList reference = engine.segments();
    ASSERT_EQ(reference.size(), 5);

    for (const char* file :
         {"speech.mp3", "speech_vbr.mp3", "speech_aac.m4a", "speech.m4r", "speech.aac",
          "speech_alac.m4a", "speech.flac", "speech_24bit.flac", "speech.aiff", "speech.aif",
          "speech.caf", "speech_float.wav", "speech_stereo.wav", "speech_6ch.wav", "speech_48k.wav",
          "speech_cover.mp3"}) {
        ASSERT_TRUE(load(file)) << file << ": " << qPrintable(engine.lastError());
        const SegmentList& segments = engine.segments();
        ASSERT_EQ(segments.size(), reference.size()) << file;
        for (qsizetype i = 0; i < segments.size(); ++i)
            EXPECT_NEAR(segments[i].start, reference[i].start, 0.02 + 1e-6) << file << " #" << i;
        EXPECT_EQ(engine.analysisProgress(), 1.0) << file;
    }
}

TEST_F(AudioManagerAnalysis, DescribesTheLoadedFile)
{
    ASSERT_TRUE(load("speech_stereo.wav"));
    EXPECT_EQ(engine.channelInfo(), "Stereo");
    EXPECT_EQ(engine.channelCount(), 2);
    EXPECT_EQ(engine.audioFormat(), "WAV");
    EXPECT_EQ(engine.sampleRate(), 44100.0f);
    EXPECT_NEAR(engine.duration(), 14.357, 0.001);
    EXPECT_EQ(engine.getTotalDuration(), engine.duration());
    EXPECT_EQ(engine.audioCharacteristics().duration, engine.duration());
    EXPECT_EQ(engine.audioCharacteristics().sampleRate, 44100.0f);
    const qint64 frames = engine.totalSamples();
    EXPECT_NEAR(double(frames) / 44100.0, engine.duration(), 0.001);
    // One RMS value per 20 ms, the last over what is left.
    EXPECT_EQ(engine.audioCharacteristics().rmsValues.size(), (frames + 881) / 882);

    ASSERT_TRUE(load("speech_6ch.wav"));
    EXPECT_EQ(engine.channelInfo(), "Mono"); // only exactly two channels are "Stereo"
    EXPECT_EQ(engine.channelCount(), 6);

    ASSERT_TRUE(load("speech_8k.wav"));
    EXPECT_EQ(engine.sampleRate(), 8000.0f);
}

TEST_F(AudioManagerAnalysis, ShortLastFrameIsMeasuredOverItsOwnLength)
{
    ASSERT_TRUE(load("tone_44673.wav")); // 50 frames of 882 and one of 573
    const QList<float>& rms = engine.audioCharacteristics().rmsValues;
    ASSERT_EQ(rms.size(), 51);
    EXPECT_EQ(engine.totalSamples(), 44673);
    // A steady tone: a shorter frame of it is about as loud as a full one.
    EXPECT_NEAR(rms.last(), rms[10], 0.01);
    EXPECT_GT(rms[10], 0.05f);
}

TEST_F(AudioManagerAnalysis, SilenceThroughoutIsOneSegment)
{
    ASSERT_TRUE(load("silent.wav"));
    const AudioCharacteristics& c = engine.audioCharacteristics();
    EXPECT_TRUE(
        std::all_of(c.rmsValues.begin(), c.rmsValues.end(), [](float v) { return v == 0.0f; }));
    EXPECT_EQ(c.averageRMS, 0.0f);
    EXPECT_EQ(c.stdDev, 0.0f);
    EXPECT_EQ(c.minRMS, 0.0f);
    EXPECT_EQ(c.maxRMS, 0.0f);
    EXPECT_EQ(engine.adaptiveThreshold(), 0.0f);
    ASSERT_EQ(engine.segments().size(), 1);
    EXPECT_EQ(engine.segments()[0], (Segment{0.0, 2.0}));
}

TEST_F(AudioManagerAnalysis, OnlyTheLeftChannelIsMeasured)
{
    ASSERT_TRUE(load("left_silent.wav"));
    EXPECT_EQ(engine.audioCharacteristics().maxRMS, 0.0f);
    EXPECT_EQ(engine.segments().size(), 1);
    EXPECT_EQ(engine.channelInfo(), "Stereo");
}

TEST_F(AudioManagerAnalysis, BadFilesFailWithTheirLogLineAndKeepThePreviousLoad)
{
    ASSERT_TRUE(load("speech.wav"));
    TestSupport::processEvents();
    const SegmentList before = engine.segments();
    const AudioPlayer* player = engine.audioPlayer();
    ASSERT_NE(player, nullptr);
    const double duration = engine.duration();
    const qint64 samples = engine.totalSamples();
    const float rate = engine.sampleRate();
    const QList<float> peaks = engine.waveformData();
    // Described, cut and playable as before: what the window goes on showing.
    const auto keptThePreviousLoad = [&](const char* file) {
        EXPECT_EQ(engine.segments(), before) << file;
        EXPECT_EQ(engine.audioPlayer(), player) << file;
        EXPECT_EQ(engine.duration(), duration) << file;
        EXPECT_EQ(engine.sampleRate(), rate) << file;
        EXPECT_EQ(engine.audioFormat(), "WAV") << file;
        EXPECT_EQ(engine.totalSamples(), samples) << file;
        EXPECT_EQ(engine.audioCharacteristics().duration, duration) << file;
        EXPECT_EQ(engine.waveformData(), peaks) << file;
        EXPECT_TRUE(engine.updateSegments(before)) << file;
    };
    const struct
    {
        const char* file;
        const char* logLine;
    } cases[] = {
        {"empty.mp3", "audio samples is 0"},        {"text.mp3", "audio samples is 0"},
        {"random.flac", "audio samples is 0"},      {"broken_header.wav", "audio samples is 0"},
        {"no-such-file.wav", "audio samples is 0"}, {"short_0.05s.wav", "Error audio duration"},
        {"tone_250.wav", "Error audio duration"},
    };
    for (const auto& c : cases) {
        TestSupport::LogCapture log;
        EXPECT_FALSE(load(c.file)) << c.file;
        EXPECT_TRUE(log.contains(c.logLine))
            << c.file << ": " << qPrintable(log.lines().join(" | "));
        EXPECT_FALSE(engine.lastError().isEmpty()) << c.file;
        keptThePreviousLoad(c.file);
    }

    TestSupport::LogCapture log;
    EXPECT_FALSE(load("truncated.mp3"));
    EXPECT_TRUE(log.lines().join('\n').contains("Error reading audio file: "));
    EXPECT_TRUE(engine.lastError().contains("truncated"));
    keptThePreviousLoad("truncated.mp3");

    // A file gone between its analysis (on a worker) and its player.
    QTemporaryDir folder;
    const QString vanishing = folder.filePath("vanishing.mp3");
    ASSERT_TRUE(QFile::copy(fixture("speech.mp3"), vanishing));
    bool ok = true;
    std::unique_ptr<QThread> worker(QThread::create(
        [&] { engine.processAudioFile(vanishing, [&](bool success) { ok = success; }); }));
    worker->start();
    worker->wait();
    ASSERT_TRUE(QFile::remove(vanishing));
    TestSupport::processEvents();
    EXPECT_FALSE(ok);
    EXPECT_TRUE(engine.lastError().startsWith("the audio cannot be played"));
    keptThePreviousLoad("vanishing.mp3");

    // The analysis step on its own still records what a file too short to cut is.
    EXPECT_FALSE(engine.analyzeAudioCharacteristics(fixture("short_0.05s.wav")));
    EXPECT_NEAR(engine.duration(), 0.05, 1e-6);
    EXPECT_EQ(engine.sampleRate(), 44100.0f);
}

TEST_F(AudioManagerAnalysis, WaveformArrivesOnTheEventLoopAfterTheCompletion)
{
    ASSERT_TRUE(load("speech.wav"));
    EXPECT_TRUE(engine.waveformData().isEmpty());
    TestSupport::processEvents();
    const QList<float>& peaks = engine.waveformData();
    ASSERT_GT(peaks.size(), 6000);
    EXPECT_EQ(*std::max_element(peaks.begin(), peaks.end()), 1.0f);
    EXPECT_GE(*std::min_element(peaks.begin(), peaks.end()), 0.0f);
    EXPECT_NEAR(double(engine.bitRate()), 705600.0, 1.0);

    // A silent file's peaks are zeros, not divided by zero.
    ASSERT_TRUE(load("silent.wav"));
    TestSupport::processEvents();
    ASSERT_FALSE(engine.waveformData().isEmpty());
    EXPECT_TRUE(std::all_of(engine.waveformData().begin(), engine.waveformData().end(),
                            [](float v) { return v == 0.0f; }));
}

TEST_F(AudioManagerAnalysis, WaveformHandlerGetsPeaksTimeScaleAndFrames)
{
    bool called = false;
    engine.extractWaveformDataWithCompletionHandler(
        [&](std::optional<QList<float>> peaks, float scale, qint64 frames) {
            called = true;
            EXPECT_FALSE(peaks.has_value());
            EXPECT_EQ(scale, 0.0f);
            EXPECT_EQ(frames, 0);
        });
    EXPECT_TRUE(called) << "without a loaded file the handler runs at once";

    ASSERT_TRUE(load("speech_stereo.wav"));
    float timeScale = 0;
    qint64 frames = 0;
    engine.extractWaveformDataWithCompletionHandler(
        [&](std::optional<QList<float>> peaks, float scale, qint64 n) {
            EXPECT_TRUE(peaks.has_value());
            timeScale = scale;
            frames = n;
        });
    TestSupport::processEvents();
    EXPECT_EQ(timeScale, 44100.0f);
    EXPECT_EQ(frames, engine.totalSamples());
}

TEST_F(AudioManagerAnalysis, LogsTheThresholdAndTheListing)
{
    TestSupport::LogCapture log;
    ASSERT_TRUE(load("speech.wav"));
    const QStringList& lines = log.lines();
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_TRUE(lines[0].startsWith("Calculated adaptive threshold: 0.0"));
    EXPECT_TRUE(lines[0].endsWith(" (sensitivity: Medium)"));
    EXPECT_TRUE(lines.contains("Found 5 silence segments:"));
    EXPECT_TRUE(lines.contains("Created 5 segments using silence midpoints:"));
    const auto silenceLines = lines.filter(QRegularExpression(
        R"(^Silence: [1-5],start=\d+\.\d\ds, duration=\d+\.\d\ds, midPoint=\d+\.\d\ds$)"));
    EXPECT_EQ(silenceLines.size(), 5);
    EXPECT_TRUE(lines.contains("Segment: 1,start=0.00s, duration=2.00s"));
}

TEST_F(AudioManagerAnalysis, LoadsOnAWorkerWhileTheMainThreadWatchesProgress)
{
    std::atomic<bool> done{false};
    bool ok = false;
    QThread* completedOn = nullptr;
    std::unique_ptr<QThread> worker(QThread::create([&] {
        engine.processAudioFile(fixture("speech_vbr.mp3"), [&](bool success) {
            ok = success;
            completedOn = QThread::currentThread();
        });
        done = true;
    }));
    worker->start();
    QList<double> seen;
    while (!done) {
        const double p = engine.analysisProgress();
        if (seen.isEmpty() || p != seen.last())
            seen.append(p);
        QThread::yieldCurrentThread();
    }
    worker->wait();
    EXPECT_EQ(engine.analysisProgress(), 1.0);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));

    // The player, the completion and then the peaks come on the engine's own
    // (this) thread, once its event loop runs.
    EXPECT_EQ(completedOn, nullptr);
    TestSupport::processEvents();
    ASSERT_TRUE(ok);
    EXPECT_EQ(completedOn, QThread::currentThread());
    TestSupport::processEvents();
    EXPECT_FALSE(engine.waveformData().isEmpty());

    // A failed load also completes on the engine's thread.
    completedOn = nullptr;
    ok = true;
    std::unique_ptr<QThread> failing(QThread::create([&] {
        engine.processAudioFile(fixture("text.mp3"), [&](bool success) {
            ok = success;
            completedOn = QThread::currentThread();
        });
    }));
    failing->start();
    failing->wait();
    EXPECT_EQ(completedOn, nullptr);
    TestSupport::processEvents();
    EXPECT_FALSE(ok);
    EXPECT_EQ(completedOn, QThread::currentThread());
}
