// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

// Kelmora's own diagnostics, one category per subsystem under "kelmora.", so
// that QT_LOGGING_RULES can silence them ("kelmora.*=false") or raise them
// ("kelmora.audio.debug=true"). Information and warnings show by default.
Q_DECLARE_LOGGING_CATEGORY(lcApp)
Q_DECLARE_LOGGING_CATEGORY(lcAudio)
Q_DECLARE_LOGGING_CATEGORY(lcDesktop)
Q_DECLARE_LOGGING_CATEGORY(lcPreferences)
Q_DECLARE_LOGGING_CATEGORY(lcPractice)
Q_DECLARE_LOGGING_CATEGORY(lcReference)
Q_DECLARE_LOGGING_CATEGORY(lcTranscript)
Q_DECLARE_LOGGING_CATEGORY(lcUpdate)

namespace Log {
// Kelmora's own lines are written as they are worded, without the category
// Qt's default format puts in front of them; every other line goes to the
// handler that was there before.
void writeOwnLinesPlain();
} // namespace Log
