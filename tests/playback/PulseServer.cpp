// SPDX-License-Identifier: GPL-3.0-or-later
#include "PulseServer.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <csignal>
#include <sys/types.h>
#include <unistd.h>

namespace {

bool run(const QString& program, const QStringList& args, const QProcessEnvironment& env,
         QString* output, int timeoutMs = 5000)
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.start(program, args);
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished(1000);
        if (output)
            *output = QStringLiteral("%1 did not finish").arg(program);
        return false;
    }
    if (output)
        *output = QString::fromLocal8Bit(p.readAll()).trimmed();
    return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

const QString kSilenceStream = QStringLiteral("kelmora-test-silence");

} // namespace

std::unique_ptr<PulseServer> PulseServer::start(QString* whyNot)
{
    for (const char* tool : {"pulseaudio", "pactl", "pacat", "parec"}) {
        if (QStandardPaths::findExecutable(tool).isEmpty()) {
            *whyNot = QStringLiteral("%1 is not installed").arg(tool);
            return nullptr;
        }
    }
    std::unique_ptr<PulseServer> server(new PulseServer);
    if (!server->m_dir.isValid()) {
        *whyNot = QStringLiteral("no temporary folder");
        return nullptr;
    }
    const QString dir = server->m_dir.path();
    const QString socket = dir + QStringLiteral("/native");
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("PULSE_RUNTIME_PATH"), dir + QStringLiteral("/runtime"));
    env.insert(QStringLiteral("PULSE_STATE_PATH"), dir + QStringLiteral("/state"));
    env.remove(QStringLiteral("PULSE_SERVER"));
    // Without rewinds the sink never renders a stretch twice, which its
    // monitor would record twice. On a busy machine a starved server drops
    // audio; as root it is given precedence, as the recorder is.
    QStringList command{QStringLiteral("pulseaudio"), QStringLiteral("--daemonize=yes"),
                        QStringLiteral("-n"), QStringLiteral("--exit-idle-time=-1"),
                        QStringLiteral("--use-pid-file=yes"),
                        // Its debug log names every stream that ran dry.
                        QStringLiteral("--log-level=debug"),
                        QStringLiteral("--log-target=file:") + server->logPath(),
                        QStringLiteral("--load=module-null-sink sink_name=testsink rate=48000 "
                                       "channels=2 norewinds=1"),
                        QStringLiteral("--load=module-native-protocol-unix auth-anonymous=1 "
                                       "socket=") +
                            socket,
                        QStringLiteral("--load=module-always-sink")};
    if (::geteuid() == 0)
        command = QStringList{QStringLiteral("nice"), QStringLiteral("-n"), QStringLiteral("-10")} +
                  command;
    QString output;
    const bool started = run(command.first(), command.mid(1), env, &output, 15000);
    QFile pidFile(dir + QStringLiteral("/runtime/pid"));
    if (pidFile.open(QIODevice::ReadOnly))
        server->m_daemonPid = QString::fromLatin1(pidFile.readAll()).trimmed().toLongLong();
    if (!started || server->m_daemonPid <= 0) {
        *whyNot = QStringLiteral("pulseaudio did not start: %1").arg(output);
        return nullptr;
    }
    server->m_address = QStringLiteral("unix:") + socket;
    env.insert(QStringLiteral("PULSE_SERVER"), server->m_address);
    QElapsedTimer waited;
    waited.start();
    while (!run(QStringLiteral("pactl"), {QStringLiteral("info")}, env, &output)) {
        if (waited.elapsed() > 10000) {
            *whyNot = QStringLiteral("pulseaudio does not answer: %1").arg(output);
            return nullptr;
        }
        QThread::msleep(50);
    }
    qputenv("PULSE_SERVER", server->m_address.toLocal8Bit());

    server->m_silence.setProcessEnvironment(env);
    server->m_silence.setStandardInputFile(QStringLiteral("/dev/zero"));
    server->m_silence.start(QStringLiteral("pacat"),
                            {QStringLiteral("-p"), QStringLiteral("--latency-msec=20"),
                             QStringLiteral("--stream-name=") + kSilenceStream});
    if (!server->m_silence.waitForStarted(5000)) {
        *whyNot = QStringLiteral("pacat did not start");
        return nullptr;
    }
    // The null sink stalls its first stream for about a second; let that be
    // the silent one, before anything that matters plays or records.
    waited.restart();
    while (waited.elapsed() < 10000) {
        run(QStringLiteral("pactl"),
            {QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sink-inputs")}, env,
            &output);
        if (!output.isEmpty())
            break;
        QThread::msleep(50);
    }
    QThread::msleep(1200);
    server->m_recorder.setProcessEnvironment(env);
    return server;
}

PulseServer::~PulseServer()
{
    stopProcess(m_recorder);
    stopProcess(m_silence);
    if (m_daemonPid > 0) {
        const auto pid = static_cast<pid_t>(m_daemonPid);
        ::kill(pid, SIGTERM);
        QElapsedTimer waited;
        waited.start();
        while (::kill(pid, 0) == 0 && waited.elapsed() < 3000)
            QThread::msleep(20);
        if (::kill(pid, 0) == 0)
            ::kill(pid, SIGKILL);
    }
}

void PulseServer::stopProcess(QProcess& process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate(); // SIGTERM to its PID
    if (!process.waitForFinished(3000)) {
        process.kill();
        process.waitForFinished(1000);
    }
}

bool PulseServer::startRecording(QString* whyNot)
{
    m_capturePath = m_dir.filePath(QStringLiteral("capture.raw"));
    m_recorder.setStandardOutputFile(m_capturePath, QIODevice::Truncate);
    // A stopped parec loses what it still buffers, so its latency is kept
    // short; not too short, or a busy machine makes it overflow and drop audio.
    const QStringList parec{QStringLiteral("parec"),
                            QStringLiteral("--latency-msec=100"),
                            QStringLiteral("-d"),
                            QStringLiteral("testsink.monitor"),
                            QStringLiteral("--format=s16le"),
                            QStringLiteral("--rate=48000"),
                            QStringLiteral("--channels=1"),
                            QStringLiteral("--raw")};
    // On a busy machine a starved recorder drops audio; as root it can be
    // given precedence.
    if (::geteuid() == 0)
        m_recorder.start(QStringLiteral("nice"),
                         QStringList{QStringLiteral("-n"), QStringLiteral("-10")} + parec);
    else
        m_recorder.start(parec.first(), parec.mid(1));
    if (!m_recorder.waitForStarted(5000)) {
        *whyNot = QStringLiteral("parec did not start");
        return false;
    }
    // Only once data flows is the recording complete from then on.
    QElapsedTimer waited;
    waited.start();
    while (QFileInfo(m_capturePath).size() < 48000 * 2 / 4) {
        if (waited.elapsed() > 10000) {
            *whyNot = QStringLiteral("parec records nothing");
            return false;
        }
        QThread::msleep(10);
    }
    m_recordingSince.start();
    m_bytesAtStart = QFileInfo(m_capturePath).size();
    return true;
}

std::vector<float> PulseServer::stopRecording()
{
    // A stopped parec loses what it has not written yet: wait until the file
    // has caught up with the time recorded (it can lag after a stall).
    constexpr qint64 kBytesPerSecond = 48000 * 2;
    const qint64 due = m_bytesAtStart + (m_recordingSince.elapsed() - 150) * kBytesPerSecond / 1000;
    QElapsedTimer waited;
    waited.start();
    while (QFileInfo(m_capturePath).size() < due && waited.elapsed() < 3000)
        QThread::msleep(10);
    stopProcess(m_recorder);
    QFile file(m_capturePath);
    std::vector<float> samples;
    if (!file.open(QIODevice::ReadOnly))
        return samples;
    const QByteArray bytes = file.readAll();
    samples.resize(static_cast<size_t>(bytes.size() / 2));
    const auto* raw = reinterpret_cast<const int16_t*>(bytes.constData());
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = raw[i] / 32768.0f;
    return samples;
}

QString PulseServer::logPath() const
{
    return m_dir.filePath(QStringLiteral("server.log"));
}

int PulseServer::playbackUnderruns() const
{
    // "Implicit underrun of 'NAME'": a playback stream had nothing to give
    // when the sink needed it, and the sink played silence in its place.
    QFile log(logPath());
    if (!log.open(QIODevice::ReadOnly))
        return 0;
    int count = 0;
    const QByteArray marker("Implicit underrun of '");
    while (!log.atEnd()) {
        const QByteArray line = log.readLine();
        if (line.contains(marker) && !line.contains(kSilenceStream.toUtf8()))
            ++count;
    }
    return count;
}
