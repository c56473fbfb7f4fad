#include "support/TestSupport.h"

#include "preferences/Defaults.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>

namespace TestSupport {

QString fixture(const QString& name)
{
    return QStringLiteral(KELMORA_FIXTURE_DIR "/") + name;
}

QString cliPath()
{
    return QStringLiteral(KELMORA_CLI_PATH);
}

namespace {
QMutex g_logMutex;
QStringList g_lines;
QtMessageHandler g_previous = nullptr;

void captureHandler(QtMsgType, const QMessageLogContext&, const QString& message)
{
    QMutexLocker lock(&g_logMutex);
    g_lines.append(message);
}
} // namespace

LogCapture::LogCapture()
{
    clear();
    g_previous = qInstallMessageHandler(captureHandler);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(g_previous);
}

const QStringList& LogCapture::lines() const
{
    return g_lines;
}

bool LogCapture::contains(const QString& line) const
{
    QMutexLocker lock(&g_logMutex);
    return g_lines.contains(line);
}

void LogCapture::clear()
{
    QMutexLocker lock(&g_logMutex);
    g_lines.clear();
}

TempDefaults::TempDefaults()
    : m_store(std::make_unique<Defaults>(m_dir.filePath(QStringLiteral("settings.ini"))))
{
}

TempDefaults::~TempDefaults() = default;

QString TempDefaults::path() const
{
    return m_dir.filePath(QStringLiteral("settings.ini"));
}

void TempDefaults::reopen()
{
    m_store.reset();
    m_store = std::make_unique<Defaults>(path());
}

void processEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

} // namespace TestSupport
