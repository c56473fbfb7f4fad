// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace Bench {

struct ProcessRun
{
    int exitCode = -1;
    double seconds = 0;       // wall time
    long peakResidentKiB = 0; // of the child alone
    double cpuSeconds = 0;    // user and system, of the child alone
};

// Runs a command with stdout and stderr sent to /dev/null.
ProcessRun runProcess(const std::vector<std::string>& argv);

// Runs a shell command and stops the benchmark if it fails.
void shell(const std::string& command);

double median(std::vector<double> values);

// A long speech recording, made once with espeak-ng and ffmpeg and kept in
// `dir` for later runs: a minute of spoken sentences with pauses, looped to
// `minutes` and encoded with the given ffmpeg audio options.
std::string longSpeechFile(const std::string& dir, int minutes, const std::string& name,
                           const std::string& encoderOptions);

} // namespace Bench
