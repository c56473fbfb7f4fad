// SPDX-License-Identifier: GPL-3.0-or-later
// Hands the waveform peaks of the loaded file to whoever draws them. The
// peaks themselves are collected during the analysis pass.

#include "audio/AudioManager.h"
#include "common/ThreadHandOff.h"

#include <QMetaObject>

void AudioManager::extractWaveformDataWithCompletionHandler(const WaveformHandler& handler)
{
    if (!m_decodedWaveform) {
        if (handler)
            handler(std::nullopt, 0.0f, 0);
        return;
    }
    m_bitRate = m_decodedWaveform->bitRate;
    if (!handler)
        return;
    // Always delivered later, on the engine's thread, even when called there.
    postHandedOver(this, [handler, waveform = *m_decodedWaveform] {
        handler(waveform.peaks, waveform.timeScale, waveform.frames);
    });
}
