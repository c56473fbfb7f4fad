// SPDX-License-Identifier: GPL-3.0-or-later
// Opening an hour-long lesson in the window: does the window keep answering
// while the file is analysed, how soon is the first segment played, and how
// much memory does the open window hold?
//
// Targets: the event loop never stalls more than 50 ms during the analysis
// (the longest gap between 10 ms timer ticks); the first segment plays no
// later than `kelmora-cli analyze` takes + 150 ms; resident memory with the
// file open <= 160 MB; a 256 KB typing journal laid over the open lesson's
// rows (what an opening does after a crash) costs <= 20 ms.
// Usage: window_open_bench [RUNS] (default 3)

#include "BenchSupport.h"
#include "BenchWindow.h"
#include "LessonSentences.h"
#include "WindowBenchSupport.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "preferences/Defaults.h"
#include "transcript/TypingJournal.h"
#include "views/TranscriptionTableView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

namespace {

double residentMB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0.0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    }
    return 0.0;
}

struct Opening
{
    double firstPlaySeconds = 0;
    double longestStallMs = 0;
    double residentMB = 0;
    qsizetype segments = 0;
    double journalMs = 0;
};

// The journal step of an opening after a crash, on the window just opened: a
// journal just under the size that is compacted, every row typed over and
// over, opened and replayed, and its texts put into the table's rows.
double layJournalOver(TranscriptionTableView& table, const QString& path)
{
    const qsizetype rows = table.mutableTranscriptions().size();
    const QStringList& sentences = Bench::lessonSentences();
    {
        TypingJournal journal(path);
        for (int i = 0; journal.fileSize() < TypingJournal::kCompactionBytes - 200; ++i)
            journal.append(int(i % rows),
                           sentences[i % sentences.size()].left(20 + i % 40));
    }
    QElapsedTimer timer;
    timer.start();
    const TypingJournal journal(path);
    const QStringList before = table.mutableTranscriptions();
    QStringList after = before;
    TypingJournal::apply(journal.recovered().records, after);
    for (qsizetype row = 0; row < after.size(); ++row) {
        if (after[row] != before[row])
            table.updateTranscription(after[row], row);
    }
    return timer.nsecsElapsed() / 1e6;
}

Opening openOnce(const QString& file)
{
    Bench::BenchWindow bench;
    MainWindowController& window = bench.window();
    AudioManager& engine = bench.engine();
    QApplication::processEvents();

    Opening result;
    QElapsedTimer clock;
    qint64 lastTick = 0;
    QTimer ticker;
    ticker.setTimerType(Qt::PreciseTimer);
    ticker.setInterval(10);
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        result.longestStallMs = std::max(result.longestStallMs, (now - lastTick) / 1e6);
        lastTick = now;
    });
    bool finished = false;
    window.viewController()->setOpeningFinishedHandler([&](bool) {
        result.firstPlaySeconds = clock.nsecsElapsed() / 1e9;
        finished = true;
    });
    clock.start();
    ticker.start();
    window.viewController()->openFileFromPath(file);
    while (!finished)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    ticker.stop();
    // Let the first segment's playback and the table settle before measuring memory.
    QElapsedTimer settle;
    settle.start();
    while (settle.elapsed() < 500)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    result.residentMB = residentMB();
    result.segments = engine.numberOfSegments();
    result.journalMs = layJournalOver(*window.viewController()->transcriptionTableView(),
                                      bench.filePath(QStringLiteral("lesson.journal")));
    window.viewController()->setOpeningFinishedHandler({});
    engine.stopPlayback();
    engine.closeAudioFile();
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    Bench::offscreenByDefault();
    QApplication app(argc, argv);
    Bench::quietEngineLog();
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;
    std::printf("Preparing a 60-minute 128 kbps speech MP3...\n");
    std::fflush(stdout);
    const std::string file = Bench::longSpeechFile(KELMORA_BENCH_DATA, 60, "speech-60min.mp3",
                                                   "-c:a libmp3lame -b:a 128k");

    std::vector<double> cliTimes, firstPlay, stalls, journals;
    double peakMB = 0;
    for (int i = 0; i < runs; ++i) {
        const Bench::ProcessRun analyse = Bench::runProcess({KELMORA_CLI_PATH, "analyze", file});
        const Opening opening = openOnce(QString::fromStdString(file));
        cliTimes.push_back(analyse.seconds);
        firstPlay.push_back(opening.firstPlaySeconds);
        stalls.push_back(opening.longestStallMs);
        journals.push_back(opening.journalMs);
        peakMB = std::max(peakMB, opening.residentMB);
        std::printf("run %d: kelmora-cli analyze %.3f s; window: first segment playing after "
                    "%.3f s, longest stall %.1f ms, resident %.1f MB, %lld segments; "
                    "a 256 KB journal laid over its rows %.1f ms\n",
                    i + 1, analyse.seconds, opening.firstPlaySeconds, opening.longestStallMs,
                    opening.residentMB, static_cast<long long>(opening.segments),
                    opening.journalMs);
        std::fflush(stdout);
    }
    const double cli = Bench::median(cliTimes);
    const double play = Bench::median(firstPlay);
    const double stall = *std::max_element(stalls.begin(), stalls.end());
    std::printf("\nmedian of %d: kelmora-cli analyze %.3f s, window first play %.3f s "
                "(target <= %.3f s) %s\n",
                runs, cli, play, cli + 0.150, play <= cli + 0.150 ? "ok" : "MISSED");
    std::printf("longest event-loop stall %.1f ms (target <= 50 ms) %s\n", stall,
                stall <= 50.0 ? "ok" : "MISSED");
    std::printf("resident memory with the file open %.1f MB (target <= 160 MB) %s\n", peakMB,
                peakMB <= 160.0 ? "ok" : "MISSED");
    const double journal = Bench::median(journals);
    std::printf("a 256 KB journal laid over the open lesson's rows %.1f ms (target <= 20 ms) %s\n",
                journal, journal <= 20.0 ? "ok" : "MISSED");
    return 0;
}
