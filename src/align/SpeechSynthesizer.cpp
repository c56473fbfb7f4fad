// SPDX-License-Identifier: GPL-3.0-or-later
#include "align/SpeechSynthesizer.h"

#include <cstring>
#include <espeak-ng/speak_lib.h>
#include <mutex>

namespace {

std::mutex& espeakLock()
{
    static std::mutex lock;
    return lock;
}

// What the synthesis callback writes into. espeak-ng's callback is global
// anyway, and only the lock's holder synthesises, so the run in progress is
// global too.
struct SynthesisRun
{
    const SpeechSynthesizer::Sink* sink = nullptr;
    const std::atomic<bool>* cancel = nullptr;
    bool stopped = false;
};
SynthesisRun* g_run = nullptr;

int collect(short* wav, int count, espeak_EVENT*)
{
    SynthesisRun* run = g_run;
    if (!run)
        return 0;
    if (run->stopped || (run->cancel && run->cancel->load(std::memory_order_relaxed))) {
        run->stopped = true;
        return 1; // espeak-ng abandons the text
    }
    if (wav && count > 0 && !(*run->sink)(wav, count)) {
        run->stopped = true;
        return 1;
    }
    return 0;
}

// Starts espeak-ng once for the process, under the lock. Short pieces (50 ms)
// keep a cancel prompt.
bool ensureStarted()
{
    static int rate = 0;
    if (rate > 0)
        return true;
    if (rate < 0)
        return false;
    rate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 50, nullptr, 0);
    if (rate != SpeechSynthesizer::kSampleRate) {
        rate = -1;
        return false;
    }
    espeak_SetSynthCallback(collect);
    return true;
}

} // namespace

bool SpeechSynthesizer::speak(const QStringList& sentences, const QString& voice, const Sink& sink,
                              const SentenceDone& sentenceDone, const std::atomic<bool>* cancel,
                              QString* error)
{
    auto fail = [error](const QString& message) {
        if (error)
            *error = message;
        return false;
    };
    std::lock_guard guard(espeakLock());
    if (!ensureStarted())
        return fail(QStringLiteral("The speech synthesiser (espeak-ng) could not start"));
    const QByteArray voiceName = voice.toUtf8();
    // By language first: a voice's name ("English_(Great_Britain)") is not
    // its code.
    espeak_VOICE wanted{};
    wanted.languages = voiceName.constData();
    if (espeak_SetVoiceByProperties(&wanted) != EE_OK &&
        espeak_SetVoiceByName(voiceName.constData()) != EE_OK)
        return fail(QStringLiteral("espeak-ng has no voice \"%1\"").arg(voice));
    espeak_SetParameter(espeakRATE, espeakRATE_NORMAL, 0);
    espeak_SetParameter(espeakPUNCTUATION, espeakPUNCT_NONE, 0);

    SynthesisRun run;
    run.sink = &sink;
    run.cancel = cancel;
    g_run = &run;
    struct Detach
    {
        ~Detach() { g_run = nullptr; }
    } detach;
    for (qsizetype i = 0; i < sentences.size(); ++i) {
        if (cancel && cancel->load(std::memory_order_relaxed))
            return fail(QStringLiteral("Cancelled"));
        const QByteArray text = sentences[i].toUtf8();
        const espeak_ERROR rc =
            espeak_Synth(text.constData(), size_t(text.size()) + 1, 0, POS_CHARACTER, 0,
                         espeakCHARS_UTF8 | espeakENDPAUSE, nullptr, nullptr);
        if (run.stopped)
            return fail(QStringLiteral("Cancelled"));
        if (rc != EE_OK)
            return fail(QStringLiteral("espeak-ng could not read sentence %1").arg(i + 1));
        if (sentenceDone)
            sentenceDone(i);
    }
    return true;
}

QStringList SpeechSynthesizer::installedVoices()
{
    std::lock_guard guard(espeakLock());
    if (!ensureStarted())
        return {};
    QStringList out;
    const espeak_VOICE** voices = espeak_ListVoices(nullptr);
    for (const espeak_VOICE** v = voices; v && *v; ++v) {
        // languages: a priority byte, a name, a zero, again, ending in a zero.
        for (const char* p = (*v)->languages; p && *p;) {
            ++p; // the priority
            out.append(QString::fromUtf8(p).toLower());
            p += std::strlen(p) + 1;
        }
        if ((*v)->identifier)
            out.append(QString::fromUtf8((*v)->identifier).section(u'/', -1).toLower());
    }
    out.removeDuplicates();
    return out;
}
