// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

// One sentence of a plain reference text placed on the recording: where it
// starts and ends, in seconds, and whether its start could not be put in a
// pause the analysis found (or had to move far to get there), so the learner
// should look at it.
struct AlignedSentence
{
    QString text;
    double start = 0.0;
    double end = 0.0;
    bool uncertain = false;

    friend bool operator==(const AlignedSentence&, const AlignedSentence&) = default;
};

using AlignedSentences = QList<AlignedSentence>;
