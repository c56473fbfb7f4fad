// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <cstdio>

namespace Bench {

// Window benchmarks draw offscreen unless told otherwise; call before the
// application object exists.
inline void offscreenByDefault()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// The engine lists every segment it cuts; only the figures matter here.
inline void quietEngineLog()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtInfoMsg && type != QtDebugMsg)
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
}

} // namespace Bench
