// SPDX-License-Identifier: GPL-3.0-or-later
// The analysis read in parts side by side against the same file read in one
// pass: everything the engine derives must come out identical.

#include "audio/ChunkedAnalysis.h"

#include "audio/AnalysisPlan.h"
#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "audio/Loudness.h"
#include "audio/Segmentation.h"
#include "common/NotificationCenter.h"
#include "support/TestSupport.h"

#include <QThread>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

// Everything a load leaves behind that the parts could get wrong.
struct Loaded
{
    QList<float> rms;
    float average = 0, max = 0, min = 0, stdDev = 0, threshold = 0;
    QList<Silence> silences;
    SegmentList segments;
    qint64 totalSamples = 0;
    double duration = 0;
    qint64 waveformFrames = 0;
    qsizetype waveformPoints = 0;
    int parts = 0;
};

class ChunkedAnalysisTest : public ::testing::Test
{
protected:
    Loaded load(const QString& name, int threads)
    {
        engine.setAnalysisThreads(threads);
        bool ok = false;
        engine.processAudioFile(fixture(name), [&](bool success) { ok = success; });
        EXPECT_TRUE(ok) << qPrintable(name) << ": " << qPrintable(engine.lastError());
        Loaded out;
        engine.extractWaveformDataWithCompletionHandler(
            [&out](std::optional<QList<float>>, float, qint64 frames) {
                out.waveformFrames = frames;
            });
        TestSupport::processEvents();
        const AudioCharacteristics& c = engine.audioCharacteristics();
        out.rms = c.rmsValues;
        out.average = c.averageRMS;
        out.max = c.maxRMS;
        out.min = c.minRMS;
        out.stdDev = c.stdDev;
        out.threshold = engine.adaptiveThreshold();
        out.silences = Segmentation::detectSilences(c.rmsValues, engine.adaptiveThreshold(),
                                                    static_cast<int>(engine.sensitivity()));
        out.segments = engine.segments();
        out.totalSamples = engine.totalSamples();
        out.duration = engine.duration();
        out.waveformPoints = engine.waveformData().size();
        out.parts = engine.analysisParts();
        return out;
    }

    static bool sameBits(const QList<float>& a, const QList<float>& b)
    {
        return a.size() == b.size() &&
               std::memcmp(a.constData(), b.constData(), sizeof(float) * size_t(a.size())) == 0;
    }

    static void expectIdentical(const Loaded& one, const Loaded& parts, const QString& what)
    {
        SCOPED_TRACE(what.toStdString());
        EXPECT_EQ(parts.rms.size(), one.rms.size());
        EXPECT_TRUE(sameBits(parts.rms, one.rms)) << "the loudness lists differ";
        EXPECT_EQ(parts.average, one.average);
        EXPECT_EQ(parts.max, one.max);
        EXPECT_EQ(parts.min, one.min);
        EXPECT_EQ(parts.stdDev, one.stdDev);
        EXPECT_EQ(parts.threshold, one.threshold);
        ASSERT_EQ(parts.silences.size(), one.silences.size());
        for (qsizetype i = 0; i < one.silences.size(); ++i) {
            EXPECT_EQ(parts.silences[i].start, one.silences[i].start);
            EXPECT_EQ(parts.silences[i].duration, one.silences[i].duration);
        }
        EXPECT_EQ(parts.segments, one.segments);
        EXPECT_EQ(parts.totalSamples, one.totalSamples);
        EXPECT_EQ(parts.duration, one.duration);
        EXPECT_EQ(parts.waveformFrames, one.waveformFrames);
        // Peak blocks restart at every buffer: a border cuts one, and after
        // a seek a PCM demuxer cuts its packets at other places.
        EXPECT_LE(std::abs(parts.waveformPoints - one.waveformPoints), parts.parts - 1);
    }

    TestSupport::TempDefaults defaults;
    NotificationCenter center;
    AudioManager engine{defaults.store(), center};
};

} // namespace

TEST_F(ChunkedAnalysisTest, PartsJoinIntoExactlyTheOnePassResult)
{
    // Every codec that starts exactly mid-stream, the lengths against the
    // analysis frame, a VBR MP3 with no table to seek by, and streams whose
    // frames change layout half-way: the MP3 is split like any other, the
    // FLAC (whose frame numbers start again at the join) is refused.
    for (const char* file :
         {"speech.mp3", "speech_vbr.mp3", "speech_vbr_notoc.mp3", "speech_cover.mp3", "speech.flac",
          "speech_24bit.flac", "speech_alac.m4a", "speech.wav", "speech.aiff", "speech.caf",
          "speech_float.wav", "speech_6ch.wav", "speech_8k.wav", "speech_441000.flac",
          "speech_441001.flac", "stereo_then_mono_untagged.mp3", "stereo_then_mono.flac"}) {
        const Loaded one = load(file, 1);
        ASSERT_EQ(one.parts, 1) << file;
        for (int threads : {2, 3, 7}) {
            const Loaded parts = load(file, threads);
            expectIdentical(one, parts, QStringLiteral("%1 in %2 parts").arg(file).arg(threads));
            if (QByteArray(file) != "stereo_then_mono.flac") {
                EXPECT_EQ(parts.parts, threads) << file << " was read in one pass";
            }
        }
    }
}

TEST_F(ChunkedAnalysisTest, AacAndShortFilesAreReadInOnePass)
{
    // AAC with and without noise substitution, priming samples trimmed.
    for (const char* file : {"speech_aac_nopns.m4a", "speech_aac.m4a", "speech.aac", "small.wav"}) {
        const Loaded one = load(file, 1);
        const Loaded asked = load(file, 4);
        EXPECT_EQ(asked.parts, 1) << file;
        expectIdentical(one, asked, file);
    }
    // 1.0 s of audio, one part of at least a second: no split.
    EXPECT_EQ(AnalysisPlan::make(44100, 882, 44100, 4).parts(), 1);
    const AnalysisPlan plan = AnalysisPlan::make(441000, 882, 44100, 3);
    ASSERT_EQ(plan.parts(), 3);
    EXPECT_EQ(plan.begin(1) % 882, 0);
    EXPECT_EQ(plan.firstValue(2), plan.begin(2) / 882);
    EXPECT_EQ(plan.end(2), AnalysisPlan::kOpenEnd);
}

// MP3 parts joined as they are: at the join the ID3 tag heading the second
// part is a packet the decoder never delivers, so the time stamps jump a
// frame ahead of the samples. A part has no samples of its neighbour's to
// vouch for such a border: the parts notice and the file is read in one pass.
TEST_F(ChunkedAnalysisTest, PartsThatCannotBePlacedExactlyAreRefused)
{
    const Loaded one = load("stereo_then_mono.mp3", 1);
    const Loaded asked = load("stereo_then_mono.mp3", 3);
    EXPECT_EQ(asked.parts, 1);
    expectIdentical(one, asked, "stereo_then_mono.mp3");

    const QString path = fixture("stereo_then_mono.mp3");
    AudioDecoder decoder;
    ASSERT_TRUE(decoder.open(path) && decoder.openCodec());
    const uint32_t length = Loudness::frameLength(float(decoder.info().sampleRate));
    const auto frames = static_cast<int64_t>(decoder.info().duration * decoder.info().sampleRate);
    ChunkedAnalysis chunked(path, decoder, AnalysisPlan::make(frames, length, 44100, 3), length);
    EXPECT_FALSE(chunked.run().has_value());
    EXPECT_FALSE(chunked.refusal().isEmpty());
}

// The window reads the progress while a worker loads: with the parts
// reporting from their own threads it still only rises, and ends at 1.
TEST_F(ChunkedAnalysisTest, ProgressRisesFromZeroToOneAcrossParts)
{
    engine.setAnalysisThreads(3);
    std::atomic<bool> finished{false};
    QThread* worker = QThread::create([&] {
        engine.processAudioFile(fixture("lesson_95s.wav"), [](bool) {});
        finished.store(true);
    });
    QList<double> seen;
    worker->start();
    while (!finished.load()) {
        seen.append(engine.analysisProgress());
        QThread::usleep(200);
    }
    worker->wait();
    delete worker;
    seen.append(engine.analysisProgress());
    EXPECT_EQ(seen.last(), 1.0);
    for (qsizetype i = 1; i < seen.size(); ++i)
        ASSERT_GE(seen[i], seen[i - 1]) << "at sample " << i;
    TestSupport::processEvents();
    EXPECT_EQ(engine.analysisParts(), 3);
}
