// SPDX-License-Identifier: GPL-3.0-or-later
// Playback benchmark on a 60-minute VBR MP3 (made on first run):
//  1. latency from playSegmentAtIndex() of a segment near the end of the file
//     to the first frame of that segment entering the ring;
//  2. CPU per second of audio at 1.0x, 0.5x, 2.0x and 3.0x;
//  3. how far currentTime() is from the frame being handed to the device.
// Usage: playback_bench [LESSON.mp3]

#include "BenchSupport.h"
#include "audio/AudioManager.h"
#include "audio/AudioOutput.h"
#include "audio/AudioPlayer.h"
#include "audio/NullAudioOutput.h"
#include "audio/QtAudioOutput.h"
#include "common/NotificationCenter.h"
#include "preferences/Defaults.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>
#include <vector>

namespace {

using SteadyClock = std::chrono::steady_clock;

int64_t nowNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               SteadyClock::now().time_since_epoch())
        .count();
}

double processCpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return double(ts.tv_sec) + double(ts.tv_nsec) * 1e-9;
}

double percentile(std::vector<double> v, double p)
{
    std::sort(v.begin(), v.end());
    return v[std::min(v.size() - 1, size_t(p * double(v.size() - 1) + 0.5))];
}

QString lessonPath(int argc, char** argv)
{
    if (argc > 1)
        return QString::fromLocal8Bit(argv[1]);
    std::printf("Preparing a 60-minute VBR speech MP3...\n");
    std::fflush(stdout);
    return QString::fromStdString(Bench::longSpeechFile(
        KELMORA_BENCH_DATA, 60, "speech-60min-vbr.mp3", "-ac 2 -c:a libmp3lame -q:a 2"));
}

std::unique_ptr<NullAudioOutput> manualOutput(NullAudioOutput** keep = nullptr)
{
    auto out = std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual);
    if (keep)
        *keep = out.get();
    return out;
}

void seekLatency(const QString& path)
{
    QTemporaryDir dir;
    Defaults defaults(dir.filePath("settings.ini"));
    NotificationCenter center;
    AudioManager engine(defaults, center);
    // A device that pulls in real time, as a sound card would.
    engine.setOutputFactory(
        [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime); });
    QElapsedTimer load;
    load.start();
    bool ok = false;
    engine.processAudioFile(path, [&](bool success) { ok = success; });
    if (!ok) {
        std::printf("cannot load %s: %s\n", qPrintable(path), qPrintable(engine.lastError()));
        std::exit(1);
    }
    AudioPlayer* player = engine.audioPlayer();
    const qsizetype count = engine.numberOfSegments();
    std::printf("\n%s: %.1f min, %lld segments, analysed in %.1f s\n",
                qPrintable(QFileInfo(path).fileName()), engine.duration() / 60.0,
                static_cast<long long>(count), double(load.elapsed()) / 1000.0);

    // The player indexes the file in the background once its ring is full.
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    std::printf(
        "1. playSegmentAtIndex -> first frame of the segment in the ring (target <= 20 ms)\n");
    for (const float rate : {1.0f, 0.5f, 3.0f}) {
        engine.setPlaybackRate(rate);
        std::vector<double> latencies;
        for (int i = 0; i < 41; ++i) {
            const qint64 index = count - 2 - (i % 20); // the last minute or so of the file
            const int64_t start = nowNs();
            engine.playSegmentAtIndex(index);
            while (player->lastSeekTiming().seek != player->seekNumber())
                std::this_thread::yield();
            latencies.push_back(double(player->lastSeekTiming().firstFrameNs - start) / 1e6);
            engine.stopPlayback();
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        std::printf("   %.1fx, %zu requests: first %.2f ms, median %.2f ms, 90th percentile %.2f "
                    "ms, max %.2f ms\n",
                    double(rate), latencies.size(), latencies.front(), percentile(latencies, 0.5),
                    percentile(latencies, 0.9), percentile(latencies, 1.0));
    }
    engine.closeAudioFile();
}

void cpuPerSecond(const QString& path)
{
    std::printf(
        "2. CPU per second of audio played (targets: <= 2%% of a core at 1.0x, <= 12%% at 0.5x)\n");
    for (const float rate : {1.0f, 0.5f, 2.0f, 3.0f}) {
        NullAudioOutput* output = nullptr;
        QString error;
        auto player = AudioPlayer::create(path, manualOutput(&output), &error);
        player->prepareToPlay();
        player->setEnableRate(true);
        player->setRate(rate);
        player->setCurrentTime(1200.0);
        player->play();
        const double seconds = 60.0;
        const auto frames = qsizetype(seconds * player->format().sampleRate);
        std::vector<float> block;
        qsizetype got = 0;
        const double cpu0 = processCpuSeconds();
        const int64_t wall0 = nowNs();
        while (got < frames) {
            const qsizetype n = output->pull(1024, block);
            got += n;
            if (n == 0)
                std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        const double cpu = processCpuSeconds() - cpu0;
        const double wall = double(nowNs() - wall0) / 1e9;
        std::printf("   %.1fx: %.2f%% of a core (%.2f s CPU for %.0f s of audio, %.0fx faster than "
                    "real time)\n",
                    double(rate), 100.0 * cpu / seconds, cpu, seconds, seconds / wall);
    }
}

void positionError(const QString& path, bool realDevice)
{
    std::unique_ptr<AudioOutput> output;
    if (realDevice)
        output = std::make_unique<QtAudioOutput>();
    else
        output = std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime, 0.1);
    QString error;
    auto player = AudioPlayer::create(path, std::move(output), &error);
    player->prepareToPlay();
    if (realDevice && player->output()->isSilent()) {
        std::printf("   (no sound device could be opened)\n");
        return;
    }
    for (const float rate : {1.0f, 0.5f}) {
        player->setEnableRate(true);
        player->setRate(rate);
        player->setCurrentTime(1800.0);
        player->play();
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        // What is heard lags what is handed over by what the device holds;
        // the gap, in wall time, is the latency currentTime() allows for.
        std::vector<double> lags;
        for (int i = 0; i < 600; ++i) {
            const FrameTag handed = player->handedFrame();
            const double now = player->currentTime();
            lags.push_back((handed.position - now) / double(rate));
            std::this_thread::sleep_for(std::chrono::microseconds(7000 + (i % 5) * 1000));
        }
        player->pause();
        std::printf("   %s, %.1fx: currentTime lags the frame being handed by median %.1f ms, "
                    "range %.1f to %.1f ms (wall time)\n",
                    realDevice ? qPrintable(player->output()->description())
                               : "null device (100 ms modelled)",
                    double(rate), percentile(lags, 0.5) * 1000, percentile(lags, 0.0) * 1000,
                    percentile(lags, 1.0) * 1000);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QString path = lessonPath(argc, argv);
    seekLatency(path);
    cpuPerSecond(path);
    std::printf(
        "3. currentTime against the frame being handed to the device (how far behind it the "
        "ear is; the real-sound test checks it against a recording)\n");
    positionError(path, false);
    if (QtAudioOutput::deviceAvailable())
        positionError(path, true);
    else
        std::printf("   (no sound device here: set PULSE_SERVER to measure a real one)\n");
    return 0;
}
