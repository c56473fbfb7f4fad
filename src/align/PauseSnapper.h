// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

// The pauses of a recording, found in its 20 ms loudness frames with the
// analysis's adaptive threshold, and the boundaries the warp estimates moved
// into them.
//
// A pause here is at least 0.2 s of frames below the threshold. Readers of
// a lesson leave 0.3 s or more between sentences, and a pause's edges lose
// a frame or two to the fading of the last and the onset of the first sound,
// so 0.2 s keeps the shortest of them; stop consonants and most hesitations
// inside a sentence stay below it. (The segmentation's 0.5 s is meant to cut
// only clear sentence breaks, and would miss the short ones a text's
// sentence boundaries fall into.)
class PauseSnapper
{
public:
    static constexpr double kFrameSeconds = 0.02;
    static constexpr double kShortestPause = 0.2;
    // How far a boundary looks for a pause, and how far it may move before
    // it is uncertain.
    static constexpr double kSearchRadius = 0.6;
    static constexpr double kCertainMove = 0.3;
    // Kept before the first sound and after the last, so that neither is cut.
    static constexpr double kSpeechMargin = 0.1;

    struct Pause
    {
        double start = 0.0;
        double end = 0.0;
        double middle() const { return (start + end) / 2.0; }
    };
    struct Snapped
    {
        double time = 0.0;
        bool uncertain = true;
    };

    PauseSnapper(const QList<float>& loudness, double duration);

    // The midpoint of the pause nearest `estimate` within the search radius
    // (distance measured to the pause's nearest edge, 0 inside it); the
    // estimate itself, uncertain, when there is none.
    Snapped snap(double estimate) const;

    const QList<Pause>& pauses() const { return m_pauses; }
    // Where the first sound starts and the last one ends, with the margin,
    // within 0..duration; 0 and the duration for a recording without a quiet
    // frame at either end (or without any sound).
    double speechStart() const { return m_speechStart; }
    double speechEnd() const { return m_speechEnd; }
    bool hasSpeech() const { return m_hasSpeech; }

private:
    QList<Pause> m_pauses;
    double m_speechStart = 0.0;
    double m_speechEnd = 0.0;
    bool m_hasSpeech = false;
};
