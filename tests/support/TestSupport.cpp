// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestSupport.h"

#include "preferences/Defaults.h"

#include <QCoreApplication>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QProcess>
#include <gtest/gtest.h>

namespace TestSupport {

QString fixture(const QString& name)
{
    return QStringLiteral(KELMORA_FIXTURE_DIR "/") + name;
}

QString cliPath()
{
    return QStringLiteral(KELMORA_CLI_PATH);
}

CliResult runCli(const QStringList& args, const QMap<QString, QString>& environment,
                 const QString& workingDirectory)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (auto it = environment.cbegin(); it != environment.cend(); ++it) {
        if (it.value().isNull())
            env.remove(it.key());
        else
            env.insert(it.key(), it.value());
    }
    QProcess p;
    p.setProcessEnvironment(env);
    p.setWorkingDirectory(workingDirectory);
    p.start(cliPath(), args);
    if (!p.waitForFinished(60000)) {
        ADD_FAILURE() << "kelmora-cli did not finish: " << args.join(' ').toStdString();
        p.kill();
        p.waitForFinished();
        return {};
    }
    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit) << "crashed: " << args.join(' ').toStdString();
    return {p.exitCode(), p.readAllStandardOutput(), p.readAllStandardError()};
}

bool runFfmpeg(const QStringList& args)
{
    QProcess p;
    const QStringList quiet{"-nostdin", "-v", "error", "-y"};
    p.start(QStringLiteral("ffmpeg"), quiet + args);
    const bool finished = p.waitForFinished(60000);
    if (!finished || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        ADD_FAILURE() << "ffmpeg " << args.join(' ').toStdString() << ": "
                      << p.readAllStandardError().toStdString();
        if (!finished) {
            p.kill();
            p.waitForFinished();
        }
        return false;
    }
    return true;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << path.toStdString();
        return {};
    }
    return file.readAll();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        ADD_FAILURE() << "cannot write " << path.toStdString();
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
