// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

// Reads sentences aloud with espeak-ng, in this process, one sentence at a
// time, so that where each sentence starts and ends in the synthesis is known
// exactly. espeak-ng keeps global state: every call here is serialised behind
// one lock, and a second caller waits for the first.
class SpeechSynthesizer
{
public:
    // espeak-ng's own rate; its voices have no other.
    static constexpr int kSampleRate = 22050;

    // Receives one sentence's samples as they come, in pieces; returning
    // false stops the synthesis (as a cancel does).
    using Sink = std::function<bool(const int16_t* samples, int count)>;
    // Called after each sentence's last piece, with its index.
    using SentenceDone = std::function<void(qsizetype index)>;

    // Speaks `sentences` with espeak-ng's voice `voice` (a voice file name
    // such as "fr-fr" or "cmn-latn-pinyin"). False with `error` set when the
    // voice cannot be loaded or espeak-ng fails, or when cancelled (then
    // `error` says "Cancelled"). The cancel flag is looked at with every
    // piece, a fraction of a second of speech.
    static bool speak(const QStringList& sentences, const QString& voice, const Sink& sink,
                      const SentenceDone& sentenceDone, const std::atomic<bool>* cancel,
                      QString* error);

    // The language codes espeak-ng's installed voices name, in lower case
    // ("en-gb", "cmn-latn-pinyin", ...); empty when espeak-ng cannot start.
    static QStringList installedVoices();
};
