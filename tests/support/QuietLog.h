// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace TestSupport {

// Keeps the engine's diagnostic log out of the test output unless
// KELMORA_TEST_LOG is set; warnings and errors still show.
inline void quietLogUnlessAsked()
{
    if (std::getenv("KELMORA_TEST_LOG"))
        return;
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtInfoMsg || type == QtDebugMsg)
            return;
        std::fprintf(stderr, "%s\n", qPrintable(message));
    });
}

} // namespace TestSupport
