// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class AudioManager;

// What the status bar says about the open file and the player.
struct StatusSnapshot
{
    QString audioPath; // empty: nothing open
    QString audioFormat;
    double sampleRate = 0.0; // Hz
    QString channelInfo;
    qint64 totalSamples = 0;
    double duration = 0.0; // seconds
    qint64 segmentCount = 0;
    bool playing = false;
    bool repeatMode = false;

    static StatusSnapshot of(const AudioManager& engine, const QString& audioPath);
};

namespace StatusText {

// "path | MP3: 44.1kHz; Stereo;Samples: N;Duration: mm:ss | Segments: N | Play | Repeat",
// labels in the interface language; empty when nothing is open. Minutes are
// rounded down and seconds rounded to the nearest, so 59.6 s reads 00:00: the
// status bar has always said so and learners' notes quote it.
QString build(const StatusSnapshot& status);

// "mm:ss.mmm", everything truncated.
QString formatTime(double seconds);

} // namespace StatusText
