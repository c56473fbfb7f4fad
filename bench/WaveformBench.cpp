// SPDX-License-Identifier: GPL-3.0-or-later
// Painting the waveform strip of a 60-minute recording, analysed by the real
// engine (a FLAC made on first run, or the file given), with 1920 x 200
// points visible in the middle of the file:
//  1. a full repaint of the visible part, at device pixel ratios 1 and 2;
//  2. a playhead move of one position tick (1/12 s): the notification and the
//     repaint of the thin stripe it marks.
// Targets: full repaint median <= 2 ms, playhead move median <= 0.3 ms
// (200 paints each).
// Usage: waveform_bench [LESSON]

#include "BenchSupport.h"
#include "WindowBenchSupport.h"
#include "audio/AudioManager.h"
#include "audio/NullAudioOutput.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "preferences/Defaults.h"
#include "views/WaveformView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <cstdio>
#include <vector>

namespace {

constexpr int kRuns = 200;
constexpr int kVisibleWidth = 1920;
constexpr int kVisibleHeight = 200;

struct Figures
{
    double median = 0;
    double worst = 0;
};

Figures summarise(const std::vector<double>& ms)
{
    Figures f;
    f.median = Bench::median(ms);
    for (double v : ms)
        f.worst = std::max(f.worst, v);
    return f;
}

// Times `paint` kRuns times after a few warm-up rounds, in milliseconds.
template <typename Paint> Figures timeIt(Paint paint)
{
    for (int i = 0; i < 10; ++i)
        paint(i);
    std::vector<double> ms;
    ms.reserve(kRuns);
    QElapsedTimer timer;
    for (int i = 0; i < kRuns; ++i) {
        timer.start();
        paint(i);
        ms.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    return summarise(ms);
}

} // namespace

int main(int argc, char** argv)
{
    Bench::offscreenByDefault();
    QApplication app(argc, argv);
    Bench::quietEngineLog();

    QString path;
    if (argc > 1) {
        path = QString::fromLocal8Bit(argv[1]);
    } else {
        std::printf("Preparing a 60-minute speech FLAC...\n");
        std::fflush(stdout);
        path = QString::fromStdString(
            Bench::longSpeechFile(KELMORA_BENCH_DATA, 60, "speech-60min.flac", "-c:a flac"));
    }

    QTemporaryDir dir;
    Defaults defaults(dir.filePath("settings.ini"));
    NotificationCenter center;
    AudioManager engine(defaults, center);
    engine.setOutputFactory(
        [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::Manual); });
    QElapsedTimer analysis;
    analysis.start();
    bool ok = false;
    engine.processAudioFile(path, [&](bool success) { ok = success; });
    QCoreApplication::processEvents(); // the waveform hand-back
    if (!ok || engine.waveformData().isEmpty()) {
        std::fprintf(stderr, "cannot analyse %s: %s\n", qPrintable(path),
                     qPrintable(engine.lastError()));
        return 1;
    }
    std::printf("%s: %.1f s, %lld waveform values, %lld segments (analysed in %.1f s)\n",
                qPrintable(path), engine.getTotalDuration(),
                static_cast<long long>(engine.waveformData().size()),
                static_cast<long long>(engine.segments().size()), analysis.elapsed() / 1000.0);

    QScrollArea area;
    area.setFrameShape(QFrame::NoFrame);
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the viewport is all of it
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.setWidgetResizable(false);
    auto* view = new WaveformView(engine, center);
    area.setWidget(view);
    area.resize(kVisibleWidth, kVisibleHeight);
    area.show();
    QCoreApplication::processEvents();
    view->updateWithSegments(engine.segments());
    view->updateWaveformData(engine.waveformData());
    view->updateContentWidth();
    // Half way through, the segment there current and the playhead in it.
    const qint64 middle = engine.segments().size() / 2;
    view->setCurrentSegment(middle);
    const Segment& current = engine.segments().at(middle);
    const double start = current.start + 0.1;
    center.post(Notifications::AudioPlaybackPositionDidUpdate, QVariant::fromValue(&engine),
                {{"position", start}});
    QCoreApplication::processEvents();
    const QRect visible = view->visibleRect().toRect();
    std::printf("view %d x %d points, visible %d..%d\n", view->width(), view->height(),
                visible.left(), visible.right());

    bool met = true;
    for (const int ratio : {1, 2}) {
        QImage image(kVisibleWidth * ratio, kVisibleHeight * ratio,
                     QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        const QRegion whole(visible);
        const Figures full =
            timeIt([&](int) { view->render(&image, QPoint(), whole, QWidget::RenderFlags()); });

        // Alternate between two positions a tick apart, as playback would.
        const Figures move = timeIt([&](int i) {
            const double position = start + (i % 2 ? 1.0 / 12.0 : 0.0);
            center.post(Notifications::AudioPlaybackPositionDidUpdate, QVariant::fromValue(&engine),
                        {{"position", position}});
            const double x = view->pixelsPerSecond() * start;
            const QRect stripe =
                QRectF(x - 4.0, 0.0, view->pixelsPerSecond() / 12.0 + 8.0, view->height())
                    .toAlignedRect();
            view->render(&image, stripe.topLeft() - visible.topLeft(), QRegion(stripe),
                         QWidget::RenderFlags());
        });
        std::printf("ratio %d: full repaint median %.3f ms (worst %.3f), target <= 2 ms\n", ratio,
                    full.median, full.worst);
        std::printf("ratio %d: playhead move median %.3f ms (worst %.3f), target <= 0.3 ms\n",
                    ratio, move.median, move.worst);
        met = met && full.median <= 2.0 && move.median <= 0.3;
    }
    std::printf(met ? "all targets met\n" : "TARGETS MISSED\n");
    return met ? 0 : 1;
}
