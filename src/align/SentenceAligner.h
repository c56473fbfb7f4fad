// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "align/AlignedSentence.h"

#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <optional>

// Places the sentences of a plain text on their recording, offline: espeak-ng
// reads the text, both the reading and the recording become MFCC frames, a
// time warp inside a band of a minute matches them, and each sentence
// boundary of the reading, carried over to the recording, settles in the
// nearest pause there.
//
// The recording is decoded and analysed on a thread of its own while the
// text is spoken on the caller's, so the two cores share the work.
class SentenceAligner
{
public:
    struct Timing
    {
        // Each phase's own time; decoding and synthesis overlap, each with
        // its own share of the feature time (counted in featureSeconds).
        double decodeSeconds = 0, synthesisSeconds = 0, featureSeconds = 0, warpSeconds = 0;
    };
    using Progress = std::function<void(double fraction)>;

    // Width of the band the warp searches, in seconds either side of the
    // straight line through the two timelines.
    static constexpr double kBandHalfSeconds = 30.0;

    // Thread-safe to call from a worker thread; returns std::nullopt with
    // *error set (one line) on failure or cancel ("Cancelled"). `language`
    // is a code AlignmentLanguages knows. One result per sentence, trimmed;
    // blank ones are left out. The first starts at the first sound (0.1 s
    // before it), each ends where the next starts, the last at the end of
    // the last sound. A text whose sound matches the recording no better
    // than chance (another language, music) has every boundary uncertain.
    // Progress is reported on the calling thread; the cancel flag takes
    // effect within a fraction of a second in every phase.
    static std::optional<AlignedSentences>
    align(const QString& audioPath, const QStringList& sentences, const QString& language,
          const Progress& progress = {}, const std::atomic<bool>* cancel = nullptr,
          QString* error = nullptr, Timing* timing = nullptr);
};
