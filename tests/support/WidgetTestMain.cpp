// Window test binaries get one QApplication, on the offscreen platform unless
// the environment names another, so that widgets render into images that the
// tests probe. The engine's diagnostic log is kept out of the test output
// unless KELMORA_TEST_LOG is set.

#include <QApplication>
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
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (!std::getenv("KELMORA_TEST_LOG"))
        qInstallMessageHandler(quietInfo);
    return RUN_ALL_TESTS();
}
