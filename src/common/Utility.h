// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

class QColor;

// Small stateless helpers shared by the session and the preferences. The
// helpers that show a window (alerts, file panels) are in dialogs/.
class Utility
{
public:
    // "#RRGGBB" in upper-case hex, each component × 255 truncated; alpha is
    // dropped. Nothing (and a log line) for a colour that has no RGB form.
    static std::optional<QString> hexStringFromColor(const QColor& color);
    // Whether two times in seconds differ by less than a microsecond.
    static bool isTimeInterval(double time, double otherTime);
    // The first `index` UTF-16 units of the string, or all of it when it is
    // shorter; never cuts a surrogate pair in two (the cut moves one unit back).
    static QString safeSubstringToIndex(qsizetype index, const QString& string);
    // The current local time as "yyyy-MM-dd HH:mm:ss.SSS".
    static QString getDateTime();
};
