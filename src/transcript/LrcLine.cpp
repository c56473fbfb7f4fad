#include "transcript/LrcLine.h"

#include <cmath>

namespace Lrc {

QString formatLine(double seconds, const QString& text)
{
    const long minutes = static_cast<long>(seconds / 60.0);
    const long wholeSeconds = static_cast<long>(std::fmod(seconds, 60.0));
    const long milliseconds = static_cast<long>((seconds - std::floor(seconds)) * 1000.0);
    return QString::asprintf("[%02ld:%02ld.%03ld]", minutes, wholeSeconds, milliseconds) + text;
}

} // namespace Lrc
