// SPDX-License-Identifier: GPL-3.0-or-later
// Every test binary gets one application object, so that queued hand-backs
// and timers behave as they do in the application.

#include "support/QuietLog.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    TestSupport::quietLogUnlessAsked();
    return RUN_ALL_TESTS();
}
