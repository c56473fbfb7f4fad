// How much does analysing a file cost beyond decoding it? Times
// `kelmora-cli analyze` on a 60-minute speech MP3 against `ffmpeg` decoding the
// same file to nothing, and reports the CLI's peak memory.
//
// Targets: time ratio <= 1.05, peak resident memory <= 120 MB.
// Usage: analysis_bench [RUNS] (default 3)

#include "BenchSupport.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    const int runs = argc > 1 ? std::max(3, std::atoi(argv[1])) : 3;
    std::printf("Preparing a 60-minute 128 kbps speech MP3...\n");
    std::fflush(stdout);
    const std::string file = Bench::longSpeechFile(KELMORA_BENCH_DATA, 60, "speech-60min.mp3",
                                                   "-c:a libmp3lame -b:a 128k");

    std::vector<double> cliTimes, ffmpegTimes;
    long peakKiB = 0;
    for (int i = 0; i < runs; ++i) {
        // Alternate the two so that neither gets a warmer cache.
        const Bench::ProcessRun decode =
            Bench::runProcess({"ffmpeg", "-nostdin", "-v", "error", "-i", file, "-f", "null", "-"});
        const Bench::ProcessRun analyse = Bench::runProcess({KELMORA_CLI_PATH, "analyze", file});
        if (decode.exitCode != 0 || analyse.exitCode != 0) {
            std::fprintf(stderr, "a run failed (ffmpeg %d, kelmora-cli %d)\n", decode.exitCode,
                         analyse.exitCode);
            return 1;
        }
        ffmpegTimes.push_back(decode.seconds);
        cliTimes.push_back(analyse.seconds);
        peakKiB = std::max(peakKiB, analyse.peakResidentKiB);
        std::printf("run %d: kelmora-cli analyze %.3f s, ffmpeg decode %.3f s, peak %.1f MB\n",
                    i + 1, analyse.seconds, decode.seconds, peakKiB / 1024.0);
    }
    const double cli = Bench::median(cliTimes);
    const double ffmpeg = Bench::median(ffmpegTimes);
    const double ratio = cli / ffmpeg;
    const double peakMB = peakKiB / 1024.0;
    std::printf("\nmedian of %d: kelmora-cli analyze %.3f s, ffmpeg decode %.3f s\n", runs, cli,
                ffmpeg);
    std::printf("time ratio %.3f (target <= 1.05) %s\n", ratio, ratio <= 1.05 ? "ok" : "MISSED");
    std::printf("peak resident memory %.1f MB (target <= 120 MB) %s\n", peakMB,
                peakMB <= 120.0 ? "ok" : "MISSED");
    return 0;
}
