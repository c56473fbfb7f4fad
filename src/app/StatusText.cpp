// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StatusText.h"

#include "audio/AudioManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

#include <cmath>

StatusSnapshot StatusSnapshot::of(const AudioManager& engine, const QString& audioPath)
{
    StatusSnapshot status;
    status.audioPath = audioPath;
    status.audioFormat = engine.audioFormat();
    status.sampleRate = engine.sampleRate();
    status.channelInfo = engine.channelInfo();
    status.totalSamples = engine.totalSamples();
    status.duration = engine.getTotalDuration();
    status.segmentCount = engine.numberOfSegments();
    status.playing = engine.isPlaying();
    status.repeatMode = engine.isRepeatMode();
    return status;
}

namespace StatusText {

QString build(const StatusSnapshot& status)
{
    if (status.audioPath.isEmpty())
        return QString();
    QString text = status.audioPath;
    text += QString::asprintf(" | %s: %.1fkHz; %s", qUtf8Printable(status.audioFormat),
                              status.sampleRate / 1000.0, qUtf8Printable(status.channelInfo));
    text += QString::asprintf(";%s: %ld", qUtf8Printable(LocalizedString(Texts::Samples)),
                              static_cast<long>(status.totalSamples));
    const auto minutes = static_cast<long>(std::floor(status.duration / 60.0));
    const auto seconds = static_cast<long>(std::lround(status.duration)) % 60;
    text += QString::asprintf(";%s: %02ld:%02ld", qUtf8Printable(LocalizedString(Texts::Duration)),
                              minutes, seconds);
    text += QString::asprintf(" | %s: %ld", qUtf8Printable(LocalizedString(Texts::Segments)),
                              static_cast<long>(status.segmentCount));
    text += QStringLiteral(" | ") + LocalizedString(status.playing ? Texts::Play : Texts::Pause);
    text += QStringLiteral(" | ") +
            LocalizedString(status.repeatMode ? Texts::Repeat : Texts::Forward);
    return text;
}

QString formatTime(double seconds)
{
    const auto whole = static_cast<long>(seconds);
    const auto millis = static_cast<long>((seconds - std::floor(seconds)) * 1000.0);
    return QString::asprintf("%02ld:%02ld.%03ld", whole / 60, whole % 60, millis);
}

} // namespace StatusText
