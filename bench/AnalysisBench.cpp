// SPDX-License-Identifier: GPL-3.0-or-later
// How much does analysing a file cost beyond decoding it? Times
// `kelmora-cli analyze` on 60-minute speech files against `ffmpeg` decoding
// the same file to nothing, with the parts decoded side by side (the default:
// one per core) and with --threads 1, 2 and 4, and reports the CLI's peak
// memory.
//
// Targets (the 128 kbps MP3): time ratio <= 0.60 by default and <= 1.05 with
// --threads 1; peak resident memory <= 120 MB. The FLAC and the AAC .m4a are
// reported alongside (AAC is always read in one pass).
// Usage: analysis_bench [RUNS] [mp3|flac|m4a ...] (default 5, all three)

#include "BenchSupport.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

struct Format
{
    const char* key;
    const char* file;
    const char* encoder;
};

const Format kFormats[] = {
    {"mp3", "speech-60min.mp3", "-c:a libmp3lame -b:a 128k"},
    {"flac", "speech-60min.flac", "-c:a flac"},
    {"m4a", "speech-60min.m4a", "-c:a aac -b:a 128k"},
};

struct Variant
{
    Variant(const char* l, std::vector<std::string> e) : label(l), extra(std::move(e)) {}
    const char* label;
    std::vector<std::string> extra;
    std::vector<double> times;
    std::vector<double> cpu;
};

bool benchFormat(const Format& format, int runs, bool targets)
{
    std::printf("\n== %s ==\n", format.file);
    std::fflush(stdout);
    const std::string file =
        Bench::longSpeechFile(KELMORA_BENCH_DATA, 60, format.file, format.encoder);

    std::vector<Variant> variants{{"default", {}},
                                  {"--threads 1", {"--threads", "1"}},
                                  {"--threads 2", {"--threads", "2"}},
                                  {"--threads 4", {"--threads", "4"}}};
    std::vector<double> ffmpegTimes, ffmpegCpu;
    long peakKiB = 0;
    for (int i = 0; i < runs; ++i) {
        // Interleaved so that none of them gets a warmer cache or a quieter
        // machine than the others.
        const Bench::ProcessRun decode =
            Bench::runProcess({"ffmpeg", "-nostdin", "-v", "error", "-i", file, "-f", "null", "-"});
        if (decode.exitCode != 0) {
            std::fprintf(stderr, "ffmpeg failed (%d)\n", decode.exitCode);
            return false;
        }
        ffmpegTimes.push_back(decode.seconds);
        ffmpegCpu.push_back(decode.cpuSeconds);
        std::printf("run %d: ffmpeg %.3f s", i + 1, decode.seconds);
        for (Variant& v : variants) {
            std::vector<std::string> argv{KELMORA_CLI_PATH, "analyze", file};
            argv.insert(argv.end(), v.extra.begin(), v.extra.end());
            const Bench::ProcessRun analyse = Bench::runProcess(argv);
            if (analyse.exitCode != 0) {
                std::fprintf(stderr, "\nkelmora-cli %s failed (%d)\n", v.label, analyse.exitCode);
                return false;
            }
            v.times.push_back(analyse.seconds);
            v.cpu.push_back(analyse.cpuSeconds);
            peakKiB = std::max(peakKiB, analyse.peakResidentKiB);
            std::printf(", %s %.3f s", v.label, analyse.seconds);
        }
        std::printf("\n");
        std::fflush(stdout);
    }
    const double ffmpeg = Bench::median(ffmpegTimes);
    // CPU time shows what the parts cost in all, whatever else the machine runs.
    std::printf("median of %d: ffmpeg decode %.3f s (cpu %.3f s)\n", runs, ffmpeg,
                Bench::median(ffmpegCpu));
    for (Variant& v : variants) {
        const double t = Bench::median(v.times);
        const double ratio = t / ffmpeg;
        std::printf("  analyze %-12s %.3f s  ratio %.3f  cpu %.3f s", v.label, t, ratio,
                    Bench::median(v.cpu));
        if (targets && v.extra.empty())
            std::printf(" (target <= 0.60) %s", ratio <= 0.60 ? "ok" : "MISSED");
        if (targets && v.extra.size() == 2 && v.extra[1] == "1")
            std::printf(" (target <= 1.05) %s", ratio <= 1.05 ? "ok" : "MISSED");
        std::printf("\n");
    }
    const double peakMB = peakKiB / 1024.0;
    std::printf("  peak resident memory %.1f MB (target <= 120 MB) %s\n", peakMB,
                peakMB <= 120.0 ? "ok" : "MISSED");
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const int runs = argc > 1 ? std::max(3, std::atoi(argv[1])) : 5;
    std::vector<std::string> wanted;
    for (int i = 2; i < argc; ++i)
        wanted.emplace_back(argv[i]);
    std::printf("%u cores\n", std::thread::hardware_concurrency());
    for (const Format& format : kFormats) {
        if (!wanted.empty() && std::find(wanted.begin(), wanted.end(), format.key) == wanted.end())
            continue;
        if (!benchFormat(format, runs, std::string(format.key) == "mp3"))
            return 1;
    }
    return 0;
}
