// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/AudioOutput.h"

#include "audio/NullAudioOutput.h"
#include "audio/QtAudioOutput.h"
#include "common/Log.h"

#include <QDebug>
#include <atomic>

namespace {
std::atomic<bool> g_saidSilent{false};
}

std::unique_ptr<AudioOutput> AudioOutput::createDefault()
{
    if (QtAudioOutput::deviceAvailable())
        return std::make_unique<QtAudioOutput>();
    if (!g_saidSilent.exchange(true))
        qCInfo(lcAudio, "No audio output device; playback continues silently");
    return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime);
}
