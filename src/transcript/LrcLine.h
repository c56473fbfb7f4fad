#pragma once

#include <QString>

namespace Lrc {

// One transcript line: "[mm:ss.mmm]text" for a segment starting at `seconds`.
// Minutes, seconds and milliseconds are each truncated, never rounded, and the
// milliseconds come from the floating fraction: 1.001 s gives [00:01.000] and
// 12.34 s gives [00:12.339]. Files written so far depend on exactly this.
QString formatLine(double seconds, const QString& text);

} // namespace Lrc
