// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace Bench {

// Sentences of the length a lesson's rows have, for benches that type or
// check text.
inline const QStringList& lessonSentences()
{
    static const QStringList sentences = {
        "Good morning, everyone, and welcome back to the programme.",
        "Today we are going to talk about the weather in the north of the country.",
        "It is often cold and windy there, even in the middle of the summer.",
        "Many people keep a warm coat by the door all year, just in case.",
        "The farmers say they can tell tomorrow's weather from the colour of the sky.",
    };
    return sentences;
}

} // namespace Bench
