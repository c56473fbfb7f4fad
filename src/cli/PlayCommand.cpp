// SPDX-License-Identifier: GPL-3.0-or-later
// kelmora-cli play: load a file into the engine as the window does and play
// it through the default sound device, the whole file or one segment a number
// of times, printing the position as it goes. Ctrl+C stops cleanly.

#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "common/NotificationCenter.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <optional>
#include <unistd.h>

namespace {

std::atomic<bool> g_interrupted{false};

void onInterrupt(int)
{
    g_interrupted.store(true);
}

struct PlayOptions
{
    QString path;
    std::optional<qint64> segment;
    std::optional<float> rate;
    qint64 repeat = 1;
};

std::optional<int> parseOptions(const QStringList& args, PlayOptions& out)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Plays an audio file through the default sound device: the whole file, or one segment\n"
        "a number of times (the segments are the ones 'analyze' prints, counted from 0)."));
    parser.addPositionalArgument(QStringLiteral("AUDIO"), QStringLiteral("the audio file"));
    const QCommandLineOption segment(QStringLiteral("segment"),
                                     QStringLiteral("play only segment N"), QStringLiteral("N"));
    const QCommandLineOption rate(
        QStringLiteral("rate"),
        QStringLiteral("playback rate, 0.3 to 3.0 (default: the stored preference)"),
        QStringLiteral("R"));
    const QCommandLineOption repeat(QStringLiteral("repeat"),
                                    QStringLiteral("play the segment K times (default 1)"),
                                    QStringLiteral("K"));
    parser.addOptions({segment, rate, repeat});
    if (auto code = Cli::parseCommandLine(parser, QStringLiteral("play"), args,
                                          QStringLiteral("audio file"), out.path))
        return code;
    bool ok = true;
    if (parser.isSet(segment)) {
        out.segment = parser.value(segment).toLongLong(&ok);
        if (!ok || *out.segment < 0) {
            Cli::printError(QStringLiteral("--segment needs a segment number from 0 up"));
            return Cli::UsageError;
        }
    }
    if (parser.isSet(rate)) {
        out.rate = parser.value(rate).toFloat(&ok);
        if (!ok || *out.rate < AudioPlayer::kMinRate || *out.rate > AudioPlayer::kMaxRate) {
            Cli::printError(QStringLiteral("--rate needs a number from 0.3 to 3.0"));
            return Cli::UsageError;
        }
    }
    if (parser.isSet(repeat)) {
        out.repeat = parser.value(repeat).toLongLong(&ok);
        if (!ok || out.repeat < 1) {
            Cli::printError(QStringLiteral("--repeat needs a count from 1 up"));
            return Cli::UsageError;
        }
        if (!out.segment) {
            Cli::printError(QStringLiteral("--repeat needs --segment"));
            return Cli::UsageError;
        }
    }
    return std::nullopt;
}

} // namespace

int Cli::play(const QStringList& args)
{
    PlayOptions options;
    if (const std::optional<int> exit = parseOptions(args, options))
        return *exit;
    if (const std::optional<int> exit = Cli::requireFile(options.path))
        return *exit;

    regDefaultPreference(Defaults::standard());
    AudioManager engine(Defaults::standard(), NotificationCenter::defaultCenter());
    bool loaded = false;
    engine.processAudioFile(options.path, [&loaded](bool success) { loaded = success; });
    if (!loaded) {
        Cli::printError(QStringLiteral("%1: %2").arg(options.path, engine.lastError()));
        return Cli::Failure;
    }
    if (options.segment && *options.segment >= engine.numberOfSegments()) {
        Cli::printError(QStringLiteral("%1 has %2 segments (0 to %3)")
                            .arg(options.path)
                            .arg(engine.numberOfSegments())
                            .arg(engine.numberOfSegments() - 1));
        return Cli::Failure;
    }
    AudioPlayer* player = engine.audioPlayer();
    if (player->output()->isSilent())
        std::fprintf(stderr, "kelmora-cli: no sound device; playing silently\n");
    if (options.rate)
        engine.setPlaybackRate(*options.rate);

    const bool tty = isatty(fileno(stdout));
    int exitCode = Cli::Success;
    bool done = false;
    auto finish = [&](const char* why) {
        if (done)
            return;
        done = true;
        engine.stopPlayback();
        std::printf("%s%s\n", tty ? "\n" : "", why);
        std::fflush(stdout);
        // Let the device play out what it still holds before closing it.
        QTimer::singleShot(250, qApp, [] { QCoreApplication::quit(); });
    };

    if (options.segment) {
        const qint64 index = *options.segment;
        const Segment s = engine.segments()[index];
        // The stored practice options play here as in the window.
        const PracticeOptions& practice = engine.practiceOptions();
        std::printf("segment %lld: %.3f s to %.3f s, %lld time%s at %.2fx%s",
                    static_cast<long long>(index), s.start, s.end(),
                    static_cast<long long>(options.repeat), options.repeat == 1 ? "" : "s",
                    static_cast<double>(engine.currentRate()),
                    practice.slowerFirst ? ", the first slower" : "");
        if (practice.repeatGap > 0.0)
            std::printf(", %.1f s of silence after each", practice.repeatGap);
        std::printf("\n");
        engine.setRepeatMode(true);
        engine.setRepeatTimes(options.repeat);
        engine.setPlaybackCompletionHandler([&engine, &options, &finish, index] {
            if (engine.currentSegmentRepeatedTimes() < options.repeat) {
                engine.stopPlayback();
                engine.playSegmentAtIndex(index);
            } else {
                finish("done");
            }
        });
        engine.setCurrentSegmentIndex(-1);
        engine.playSegmentAtIndex(index);
    } else {
        std::printf("%s: %.3f s at %.2fx\n", qPrintable(options.path), engine.duration(),
                    static_cast<double>(engine.currentRate()));
        engine.setRepeatMode(false);
        QObject::connect(player, &AudioPlayer::didFinishPlaying, qApp, [&] { finish("done"); });
        player->setCurrentTime(0.0);
        engine.play();
    }
    std::fflush(stdout);

    std::signal(SIGINT, onInterrupt);
    std::signal(SIGTERM, onInterrupt);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, qApp, [&] {
        if (g_interrupted.load()) {
            finish("stopped");
            return;
        }
        if (done)
            return;
        const double position = player->currentTime();
        if (options.segment) {
            std::printf("%s%8.3f s  play %lld of %lld%s", tty ? "\r" : "", position,
                        static_cast<long long>(engine.currentSegmentRepeatedTimes()),
                        static_cast<long long>(options.repeat), tty ? "" : "\n");
        } else {
            std::printf("%s%8.3f s%s", tty ? "\r" : "", position, tty ? "" : "\n");
        }
        std::fflush(stdout);
    });
    watch.start(250);
    QCoreApplication::exec();
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    engine.closeAudioFile();
    return exitCode;
}
