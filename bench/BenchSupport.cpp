// SPDX-License-Identifier: GPL-3.0-or-later
#include "BenchSupport.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Bench {

ProcessRun runProcess(const std::vector<std::string>& argv)
{
    std::vector<char*> args;
    for (const std::string& a : argv)
        args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);

    const auto start = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, 1);
        dup2(null, 2);
        execvp(args[0], args.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    const auto end = std::chrono::steady_clock::now();
    ProcessRun run;
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.seconds = std::chrono::duration<double>(end - start).count();
    run.peakResidentKiB = usage.ru_maxrss;
    run.cpuSeconds = double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
                     double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
    return run;
}

void shell(const std::string& command)
{
    if (std::system(command.c_str()) != 0) {
        std::fprintf(stderr, "benchmark set-up failed: %s\n", command.c_str());
        std::exit(1);
    }
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

std::string longSpeechFile(const std::string& dir, int minutes, const std::string& name,
                           const std::string& encoderOptions)
{
    std::filesystem::create_directories(dir);
    const std::string out = dir + "/" + name;
    if (std::filesystem::exists(out))
        return out;
    const std::string minute = dir + "/minute.wav";
    if (!std::filesystem::exists(minute)) {
        std::string ssml = "<speak>";
        const char* sentences[] = {
            "The morning train to the coast leaves at a quarter past seven.",
            "Please remember to bring your notebook to every lesson.",
            "She asked whether the library would be open on Sunday.",
            "We walked along the river until the sun went down.",
            "Listening carefully is the first step to writing well.",
            "The weather forecast promised rain for the whole weekend.",
        };
        for (int i = 0; i < 3; ++i) {
            for (const char* s : sentences)
                ssml += std::string(s) + "<break time=\"900ms\"/>";
        }
        ssml += "</speak>";
        shell("espeak-ng -v en-gb -s 150 -m -w '" + dir + "/sentences.wav' '" + ssml + "'");
        // Pad or cut to exactly one minute so that looping gives whole minutes.
        shell("ffmpeg -nostdin -v error -y -i '" + dir +
              "/sentences.wav' -af apad -t 60 -ar 44100 -ac 1 '" + minute + "'");
    }
    shell("ffmpeg -nostdin -v error -y -stream_loop " + std::to_string(minutes - 1) + " -i '" +
          minute + "' " + encoderOptions + " '" + out + "'");
    return out;
}

} // namespace Bench
