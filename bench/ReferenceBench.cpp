// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and laying out the reference text of a 60-minute lesson (720
// segments of 5 s): a SubRip file of 720 cues, and plain text of 800
// sentences on 200 lines dealt out by duration. Both happen on the main
// thread when a reference is attached or the segments change.
// Target: each <= 20 ms median.
// Usage: reference_bench [RUNS]

#include "BenchSupport.h"
#include "reference/ReferenceMapping.h"
#include "reference/ReferenceReader.h"

#include <QElapsedTimer>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

double medianMilliseconds(int runs, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return Bench::median(times);
}

QString stamp(int seconds)
{
    return QStringLiteral("%1:%2:%3,000")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const int runs = argc > 1 ? std::atoi(argv[1]) : 50;
    QList<double> starts;
    for (int i = 0; i < 720; ++i)
        starts.append(i * 5.0);

    QString srt;
    for (int i = 0; i < 720; ++i)
        srt += QStringLiteral("%1\n%2 --> %3\n<i>Cue number %1</i> says a few words,\nover two "
                              "lines of text.\n\n")
                   .arg(i + 1)
                   .arg(stamp(i * 5 + 1), stamp(i * 5 + 4));
    const QByteArray srtBytes = srt.toUtf8();
    QString txt;
    for (int i = 0; i < 800; ++i)
        txt += QStringLiteral("Sentence %1 has some words in it.").arg(i) +
               QChar(i % 4 == 3 ? u'\n' : u' ');
    const QByteArray txtBytes = txt.toUtf8();

    const double srtMs = medianMilliseconds(runs, [&] {
        const auto reference = ReferenceReader::readBytes(srtBytes, "lesson.srt", 3600.0);
        if (!reference || ReferenceMapping::map(*reference, starts, 3600.0).size() != 720)
            std::abort();
    });
    const double txtMs = medianMilliseconds(runs, [&] {
        const auto reference = ReferenceReader::readBytes(txtBytes, "lesson.txt", 3600.0);
        if (!reference || ReferenceMapping::map(*reference, starts, 3600.0).size() != 720)
            std::abort();
    });
    std::printf("720 SubRip cues read and mapped: %.2f ms median (target <= 20)\n", srtMs);
    std::printf("800 sentences read and dealt over 720 segments: %.2f ms median (target <= 20)\n",
                txtMs);
    return srtMs <= 20.0 && txtMs <= 20.0 ? 0 : 1;
}
