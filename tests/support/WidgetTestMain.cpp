// SPDX-License-Identifier: GPL-3.0-or-later
// Window test binaries get one QApplication, on the offscreen platform unless
// the environment names another, so that widgets render into images that the
// tests probe.

#include "support/QuietLog.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    TestSupport::quietLogUnlessAsked();
    return RUN_ALL_TESTS();
}
