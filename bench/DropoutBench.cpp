// SPDX-License-Identifier: GPL-3.0-or-later
// Dropouts under load: a speech MP3 plays through a private PulseAudio null
// sink at every rate from 0.3x to 3.0x (steps of 0.1), 60 s each, while two
// busy processes keep both cores busy. For each rate it counts the times the
// device found the player's ring empty in the middle of the sound, and the
// times the sink found the player's stream empty. The figure to reach: 0.
// Usage: dropout_bench [SECONDS_PER_RATE [RATE...]]

#include "BenchSupport.h"
#include "PulseServer.h"
#include "audio/AudioOutput.h"
#include "audio/AudioPlayer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/prctl.h>
#include <vector>

namespace {

// A process that keeps one core busy until it is killed, or this one ends
// (also when this one is killed: a loop left behind spoils the next run).
std::unique_ptr<QProcess> busyLoop()
{
    auto process = std::make_unique<QProcess>();
    process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->start(QStringLiteral("sh"),
                   {QStringLiteral("-c"), QStringLiteral("while :; do :; done")});
    process->waitForStarted();
    return process;
}

void wait(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * 1000), &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const double seconds = argc > 1 ? std::atof(argv[1]) : 60.0;
    std::vector<float> rates;
    for (int i = 2; i < argc; ++i)
        rates.push_back(static_cast<float>(std::atof(argv[i])));
    if (rates.empty())
        for (int tenth = 3; tenth <= 30; ++tenth)
            rates.push_back(float(tenth) / 10.0f);

    QString whyNot;
    std::unique_ptr<PulseServer> pulse = PulseServer::start(&whyNot);
    if (!pulse) {
        std::fprintf(stderr, "no sound server: %s\n", qPrintable(whyNot));
        return 1;
    }
    // Long enough that no rate reaches the end within the time given.
    const QString path = QString::fromStdString(Bench::longSpeechFile(
        KELMORA_BENCH_DATA, 10, "speech-10min.mp3", "-ac 2 -c:a libmp3lame -b:a 128k"));
    QString error;
    std::unique_ptr<AudioPlayer> player =
        AudioPlayer::create(path, AudioOutput::createDefault(), &error);
    if (!player) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(error));
        return 1;
    }
    player->prepareToPlay();
    player->setEnableRate(true);
    if (player->output()->isSilent()) {
        std::fprintf(stderr, "the player fell back to a silent output\n");
        return 1;
    }

    const std::unique_ptr<QProcess> busy[] = {busyLoop(), busyLoop()};
    std::printf("dropouts under load (two busy loops), %.0f s per rate, on %s\n", seconds,
                qPrintable(player->output()->description()));
    std::printf("rate  ring ran dry  sink ran dry\n");
    int total = 0;
    for (float rate : rates) {
        player->setRate(rate);
        player->setCurrentTime(0.0);
        const int dryBefore = player->shortReads();
        const int sinkBefore = pulse->playbackUnderruns();
        player->play();
        wait(seconds);
        player->pause();
        const int dry = player->shortReads() - dryBefore;
        const int sink = pulse->playbackUnderruns() - sinkBefore;
        total += dry + sink;
        std::printf("%.1fx  %12d  %12d\n", double(rate), dry, sink);
        std::fflush(stdout);
    }
    for (const auto& process : busy)
        process->kill(), process->waitForFinished();
    std::printf("dropouts in all: %d\n", total);
    return 0;
}
