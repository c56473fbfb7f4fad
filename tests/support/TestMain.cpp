// Every test binary gets one application object, so that queued hand-backs
// and timers behave as they do in the application. The engine's diagnostic
// log is kept out of the test output unless KELMORA_TEST_LOG is set.

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {
void quietInfo(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtInfoMsg || type == QtDebugMsg)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
}
} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    if (!std::getenv("KELMORA_TEST_LOG"))
        qInstallMessageHandler(quietInfo);
    return RUN_ALL_TESTS();
}
