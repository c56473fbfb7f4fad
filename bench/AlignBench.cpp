// SPDX-License-Identifier: GPL-3.0-or-later
// Placing a plain text on its recording: a 60-minute lesson of 720 sentences
// and a 3-minute one of 36, read by another espeak-ng voice than the
// aligner's, with pauses of 0.3 to 1.2 s and faint noise, as MP3.
// Targets: 60 minutes in <= 60 s with <= 400 MB peak memory, 3 minutes in
// <= 3 s, on two cores; a cancel takes effect within 0.5 s in every phase.
// Prints the time of decoding, synthesis, features and warping, the peak
// resident memory of the process, and how long a cancel took to be obeyed.
// Usage: align_bench (run it at nice 19)

#include "BenchSupport.h"
#include "align/SentenceAligner.h"

#include <QFile>
#include <QStringList>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <sys/resource.h>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

// 720 different sentences of ten to fourteen words, made by combination.
QStringList lessonSentences(int count)
{
    const char* who[] = {"My neighbour", "The old teacher", "A young doctor",  "Our captain",
                         "The baker",    "Her cousin",      "The new student", "A tired farmer",
                         "The pilot",    "His grandmother", "The mayor",       "A quiet painter"};
    const char* did[] = {"carried", "painted", "repaired", "described", "found",
                         "sold",    "opened",  "cleaned",  "borrowed",  "measured"};
    const char* what[] = {"a wooden boat",     "the broken clock", "three heavy boxes",
                          "an enormous map",   "the red bicycle",  "a basket of apples",
                          "the kitchen window"};
    const char* where[] = {"near the harbour", "behind the station",     "in the village square",
                           "beside the river", "at the top of the hill", "inside the museum"};
    const char* when[] = {"early on Monday morning.", "before the storm arrived.",
                          "after a long lunch.", "during the summer holidays.",
                          "late in the evening."};
    QStringList out;
    for (int i = 0; i < count; ++i) {
        out.append(QStringLiteral("%1 %2 %3 %4 %5")
                       .arg(QLatin1String(who[i % 12]), QLatin1String(did[(i / 12) % 10]),
                            QLatin1String(what[(i / 3) % 7]), QLatin1String(where[(i / 5) % 6]),
                            QLatin1String(when[(i / 2) % 5])));
    }
    return out;
}

// The lesson's text, one sentence a line, and its recording, made once.
std::string makeLesson(const std::string& dir, const QStringList& sentences,
                       const std::string& name)
{
    std::filesystem::create_directories(dir);
    const std::string audio = dir + "/" + name + ".mp3";
    QFile text(QString::fromStdString(dir + "/" + name + ".txt"));
    if (text.open(QIODevice::WriteOnly))
        text.write(sentences.join(u'\n').toUtf8());
    if (std::filesystem::exists(audio))
        return audio;
    QString ssml = QStringLiteral("<speak>");
    for (qsizetype i = 0; i < sentences.size(); ++i)
        ssml +=
            sentences[i] + QStringLiteral("<break time=\"%1ms\"/>").arg(300 + (i * 7 % 10) * 100);
    ssml += QStringLiteral("</speak>");
    QFile ssmlFile(QString::fromStdString(dir + "/" + name + ".ssml"));
    if (ssmlFile.open(QIODevice::WriteOnly))
        ssmlFile.write(ssml.toUtf8());
    ssmlFile.close();
    Bench::shell("espeak-ng -v en-us+f3 -p 70 -s 150 -m -f '" + dir + "/" + name + ".ssml' -w '" +
                 dir + "/" + name + ".wav'");
    Bench::shell("ffmpeg -nostdin -v error -y -i '" + dir + "/" + name +
                 ".wav' -f lavfi -i 'anoisesrc=r=22050:a=0.01:c=pink:seed=7' -filter_complex "
                 "'[0:a][1:a]amix=inputs=2:duration=first:normalize=0' -ar 44100 -ac 1 "
                 "-c:a libmp3lame -b:a 128k '" +
                 audio + "'");
    return audio;
}

long peakResidentMiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

bool run(const char* label, const std::string& audio, const QStringList& sentences)
{
    SentenceAligner::Timing timing;
    QString error;
    const Clock::time_point start = Clock::now();
    const auto result = SentenceAligner::align(QString::fromStdString(audio), sentences, "en", {},
                                               nullptr, &error, &timing);
    const double wall = std::chrono::duration<double>(Clock::now() - start).count();
    if (!result) {
        std::printf("%s: failed: %s\n", label, qPrintable(error));
        return false;
    }
    int uncertain = 0;
    for (const AlignedSentence& s : *result)
        uncertain += s.uncertain;
    std::printf("%s: %lld sentences, recording %.1f min, %.2f s wall\n"
                "  decode %.2f s, synthesis %.2f s, features %.2f s, warp %.2f s "
                "(decode and synthesis overlap)\n"
                "  %d boundaries uncertain; peak resident memory so far %ld MiB\n",
                label, static_cast<long long>(result->size()), result->last().end / 60.0, wall,
                timing.decodeSeconds, timing.synthesisSeconds, timing.featureSeconds,
                timing.warpSeconds, uncertain, peakResidentMiB());
    return true;
}

// Sets the flag from another thread once progress passes `at`, and measures
// how long the run takes to return after that.
void cancelLatency(const std::string& audio, const QStringList& sentences, double at,
                   const char* phase)
{
    std::atomic<bool> cancel{false};
    std::atomic<bool> reached{false};
    Clock::time_point setAt;
    std::thread canceller([&] {
        while (!reached)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        setAt = Clock::now();
        cancel = true;
    });
    QString error;
    const auto result = SentenceAligner::align(
        QString::fromStdString(audio), sentences, "en",
        [&](double f) {
            if (f >= at)
                reached = true;
        },
        &cancel, &error);
    const Clock::time_point end = Clock::now();
    reached = true;
    canceller.join();
    std::printf("cancel during %s: %s after %.0f ms\n", phase,
                result ? "not obeyed, finished" : qPrintable(error),
                std::chrono::duration<double, std::milli>(end - setAt).count());
}

} // namespace

int main()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const std::string dir = std::string(KELMORA_BENCH_DATA) + "/align";
    const QStringList hour = lessonSentences(720);
    const QStringList minutes = hour.mid(0, 36);
    const std::string hourAudio = makeLesson(dir, hour, "lesson_60min");
    const std::string minutesAudio = makeLesson(dir, minutes, "lesson_3min");

    std::printf("peak resident memory before aligning: %ld MiB\n", peakResidentMiB());
    bool ok = run("3-minute lesson", minutesAudio, minutes);
    ok = run("60-minute lesson", hourAudio, hour) && ok;
    cancelLatency(hourAudio, hour, 0.05, "decoding and synthesis");
    cancelLatency(hourAudio, hour, 0.65, "decoding and synthesis, near their end");
    cancelLatency(hourAudio, hour, 0.8, "warping");
    return ok ? 0 : 1;
}
