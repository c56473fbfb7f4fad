// SPDX-License-Identifier: GPL-3.0-or-later
// The position tickers that every play() leaves behind: after 1,000 segment
// plays, with the waveform strip observing the positions as in the window,
// how much of a core do they cost while nothing plays, against the same
// process with no ticker? And does every tick post exactly one notification
// per live ticker?
// Target: <= 1% of a core for 1,000 live tickers.
// Usage: ticker_bench [SECONDS_PER_MEASUREMENT]

#include "WindowBenchSupport.h"
#include "audio/AudioManager.h"
#include "audio/NullAudioOutput.h"
#include "common/Clock.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "preferences/Defaults.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QEventLoop>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

double processCpuSeconds()
{
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return double(ts.tv_sec) + double(ts.tv_nsec) * 1e-9;
}

// The system clock, counting the firings of its repeating timers (the shared
// position timer is the only one the engine repeats) and the notifications
// each firing posts.
class CountingClock : public Clock
{
public:
    explicit CountingClock(const long long& posts) : m_posts(posts) {}

    std::shared_ptr<Timer> scheduledTimer(double seconds, bool repeats,
                                          std::function<void()> action) override
    {
        if (!repeats)
            return Clock::system().scheduledTimer(seconds, false, std::move(action));
        return Clock::system().scheduledTimer(seconds, true, [this, action = std::move(action)] {
            const long long before = m_posts;
            action();
            ++ticks;
            lastTickPosts = m_posts - before;
            if (expected >= 0 && lastTickPosts != expected)
                ++wrongTicks;
        });
    }

    long long ticks = 0;
    long long lastTickPosts = 0;
    long long expected = -1; // posts each tick must make, when known
    long long wrongTicks = 0;

private:
    const long long& m_posts;
};

struct Measurement
{
    double cpuPercent = 0;
    long long ticks = 0;
    long long posts = 0;
};

Measurement idle(double seconds, CountingClock& clock, const long long& posts)
{
    const long long ticks0 = clock.ticks, posts0 = posts;
    const double cpu0 = processCpuSeconds();
    QEventLoop loop;
    QTimer::singleShot(int(seconds * 1000), &loop, &QEventLoop::quit);
    loop.exec();
    return {100.0 * (processCpuSeconds() - cpu0) / seconds, clock.ticks - ticks0, posts - posts0};
}

} // namespace

int main(int argc, char** argv)
{
    Bench::offscreenByDefault();
    QApplication app(argc, argv);
    Bench::quietEngineLog();
    const double seconds = argc > 1 ? std::atof(argv[1]) : 10.0;

    QTemporaryDir dir;
    Defaults defaults(dir.filePath("settings.ini"));
    NotificationCenter center;
    long long posts = 0;
    CountingClock clock(posts);
    AudioManager engine(defaults, center);
    engine.setClock(clock);
    // Nothing is heard: a device that takes no sound unless asked.
    engine.setOutputFactory(
        [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual); });
    bool ok = false;
    engine.processAudioFile(QStringLiteral(KELMORA_DEMO_LESSON), [&](bool done) { ok = done; });
    QCoreApplication::processEvents();
    if (!ok || engine.numberOfSegments() < 2) {
        std::fprintf(stderr, "cannot analyse the demo lesson: %s\n",
                     qPrintable(engine.lastError()));
        return 1;
    }

    // The window's observer: the waveform strip, shown, following positions.
    QScrollArea area;
    auto* view = new WaveformView(engine, center);
    area.setWidget(view);
    area.resize(1280, 200);
    area.show();
    view->updateWithSegments(engine.segments());
    view->updateWaveformData(engine.waveformData());
    view->updateContentWidth();
    QObject counter;
    center.addObserver(Notifications::AudioPlaybackPositionDidUpdate, &counter,
                       [&posts](const NotificationCenter::Notification&) { ++posts; });
    QCoreApplication::processEvents();

    std::printf("%.0f s per measurement, ticks every 1/12 s\n", seconds);
    const Measurement base = idle(seconds, clock, posts);
    std::printf("no ticker:     %.2f%% of a core (%lld ticks, %lld posts)\n", base.cpuPercent,
                base.ticks, base.posts);

    constexpr int kPlays = 1000;
    const qint64 segments = engine.numberOfSegments();
    for (int i = 0; i < kPlays; ++i)
        engine.playSegmentAtIndex(i % segments);
    engine.pausePlayback();
    QCoreApplication::processEvents();
    clock.expected = kPlays;
    const Measurement loaded = idle(seconds, clock, posts);
    const double perTick = loaded.ticks ? double(loaded.posts) / double(loaded.ticks) : 0.0;
    std::printf("%d tickers: %.2f%% of a core (%lld ticks, %lld posts, %.1f per tick, %lld ticks "
                "with another count)\n",
                kPlays, loaded.cpuPercent, loaded.ticks, loaded.posts, perTick, clock.wrongTicks);
    const bool met = loaded.cpuPercent <= 1.0 && clock.wrongTicks == 0 && loaded.ticks > 0;
    std::printf(met ? "target met (<= 1%% of a core, one post per ticker per tick)\n"
                    : "TARGET MISSED\n");
    return met ? 0 : 1;
}
