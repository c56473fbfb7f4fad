// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Log.h"

#include <cstring>

Q_LOGGING_CATEGORY(lcApp, "kelmora.app", QtInfoMsg)
Q_LOGGING_CATEGORY(lcAudio, "kelmora.audio", QtInfoMsg)
Q_LOGGING_CATEGORY(lcDesktop, "kelmora.desktop", QtInfoMsg)
Q_LOGGING_CATEGORY(lcPreferences, "kelmora.preferences", QtInfoMsg)
Q_LOGGING_CATEGORY(lcPractice, "kelmora.practice", QtInfoMsg)
Q_LOGGING_CATEGORY(lcReference, "kelmora.reference", QtInfoMsg)
Q_LOGGING_CATEGORY(lcTranscript, "kelmora.transcript", QtInfoMsg)
Q_LOGGING_CATEGORY(lcUpdate, "kelmora.update", QtInfoMsg)

namespace {
QtMessageHandler g_next = nullptr;

void handler(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (context.category && std::strncmp(context.category, "kelmora.", 8) == 0) {
        QMessageLogContext plain(context.file, context.line, context.function, "default");
        g_next(type, plain, message);
        return;
    }
    g_next(type, context, message);
}
} // namespace

void Log::writeOwnLinesPlain()
{
    if (!g_next)
        g_next = qInstallMessageHandler(handler);
}
