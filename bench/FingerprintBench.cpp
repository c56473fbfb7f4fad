// SPDX-License-Identifier: GPL-3.0-or-later
// A dictation found again: what an opening adds for it on the main thread —
// the content fingerprint of a 60-minute lesson (180 000 loudness values) and
// the lookup in a store index of 2 000 lessons — and the index's record at a
// save, medians (target: fingerprint and lookup together 5 ms at most).
// Usage: fingerprint_bench [folder]   (default: a temporary folder in /tmp)

#include "BenchSupport.h"
#include "transcript/ContentFingerprint.h"
#include "transcript/FingerprintIndex.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

// CPU time of this thread: on a shared machine the wall clock also counts
// the time other processes held the core.
double cpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

QString hexName(quint64 seed)
{
    return ContentFingerprint::of({float(seed)}, 44100.0, qint64(seed) + 1);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir temporary(argc > 1 ? QString::fromLocal8Bit(argv[1]) + "/fingerprint-bench-XXXXXX"
                                     : QDir::tempPath() + "/fingerprint-bench-XXXXXX");
    if (!temporary.isValid()) {
        std::fprintf(stderr, "cannot make a folder: %s\n", qPrintable(temporary.errorString()));
        return 1;
    }
    constexpr qsizetype kFrames = 180000; // 60 minutes of 20 ms frames
    constexpr int kLessons = 2000;
    constexpr int kRuns = 50;

    QList<float> rms(kFrames);
    QRandomGenerator random(7);
    for (float& value : rms)
        value = float(random.generateDouble() * 0.3);

    const FingerprintIndex index(temporary.path());
    const QDateTime saved = QDateTime::currentDateTimeUtc();
    for (int i = 0; i < kLessons; ++i) {
        const QString path =
            QStringLiteral("/home/learner/Music/Course %1/Lesson %2.mp3").arg(i / 40).arg(i % 40);
        if (!index.record(hexName(quint64(i)), {hexName(quint64(i) + 100000), path, saved})) {
            std::fprintf(stderr, "cannot write the index in %s\n", qPrintable(temporary.path()));
            return 1;
        }
    }

    // Wall and CPU time of each step, per run.
    struct Step
    {
        std::vector<double> wall, cpu;
        QElapsedTimer timer;
        double cpuStart = 0;
        void start()
        {
            cpuStart = cpuMs();
            timer.start();
        }
        void stop()
        {
            wall.push_back(double(timer.nsecsElapsed()) / 1e6);
            cpu.push_back(cpuMs() - cpuStart);
        }
    } fingerprinting, looking, recording;
    for (int run = 0; run < kRuns; ++run) {
        fingerprinting.start();
        const QString fingerprint = ContentFingerprint::of(rms, 44100.0, kFrames * 882);
        fingerprinting.stop();
        looking.start();
        const bool found = index.lookup(hexName(quint64(run))).has_value();
        looking.stop();
        if (!found) {
            std::fprintf(stderr, "an entry recorded was not found\n");
            return 1;
        }
        recording.start();
        index.record(fingerprint, {hexName(quint64(run) + 200000), "/music/x.mp3", saved});
        recording.stop();
    }
    const auto report = [](const char* what, const Step& step) {
        std::printf("%s: median %.3f ms (CPU %.3f ms)\n", what, Bench::median(step.wall),
                    Bench::median(step.cpu));
    };
    report("content fingerprint of 180 000 loudness values", fingerprinting);
    std::printf("index of %d lessons: %lld bytes\n", kLessons,
                qlonglong(QFileInfo(index.path()).size()));
    report("lookup", looking);
    std::printf("added to an opening: %.3f ms, CPU %.3f ms (target 5 ms)\n",
                Bench::median(fingerprinting.wall) + Bench::median(looking.wall),
                Bench::median(fingerprinting.cpu) + Bench::median(looking.cpu));
    report("record at a save (read, replace durably)", recording);
    return 0;
}
