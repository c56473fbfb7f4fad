// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Lrc {

// One transcript line: "[mm:ss.mmm]text" for a segment starting at `seconds`.
// Minutes, seconds and milliseconds are truncated, never rounded, after the
// time has been rounded to a tenth of a nanosecond. That grain lies between
// the two kinds of start the writer meets: a start computed in float32 (the
// engine's cuts) is at least half a nanosecond from a millisecond it falls
// short of, and keeps today's stamp (4.72f is 4.7199998 s, [00:04.719]); a
// start read back from a file is the double nearest the millisecond it names,
// a hair below it or above, and is written back unchanged (12.34 s gives
// [00:12.340], so a stamp survives any number of save/load cycles).
QString formatLine(double seconds, const QString& text);

} // namespace Lrc
