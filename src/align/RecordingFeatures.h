// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <atomic>
#include <optional>
#include <vector>

// What the aligner needs of a recording, made in one pass of the decoder:
// the sound mixed to mono and resampled to the synthesis's rate, turned into
// MFCC frames and 20 ms loudness frames. The samples themselves are never
// kept, so an hour-long lesson costs its features, not its sound.
struct RecordingFeatures
{
    std::vector<float> mfcc;     // Mfcc::kCoefficients per frame
    int hop = 0;                 // samples between MFCC frames
    QList<float> loudness;       // RMS of every 20 ms
    double duration = 0.0;       // seconds decoded
    double featureSeconds = 0.0; // of the pass, the time spent on features

    // Reads `path`. Nothing, with `error` set to one line, when the file
    // cannot be read as audio, or on cancel ("Cancelled"); the flag is looked
    // at with every decoded buffer. `progress` receives the fraction read.
    static std::optional<RecordingFeatures> read(const QString& path, int sampleRate,
                                                 const std::atomic<bool>* cancel,
                                                 std::atomic<double>* progress, QString* error);
};
