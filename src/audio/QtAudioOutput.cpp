#include "audio/QtAudioOutput.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>
#include <QTimer>

namespace {

// The sink's data source: every read is answered in full by the player's
// render() (silence when it has nothing), so the sink never goes idle.
class RenderDevice : public QIODevice
{
public:
    RenderDevice(AudioRenderSource* source, int channels, QObject* parent)
        : QIODevice(parent), m_source(source), m_bytesPerFrame(channels * int(sizeof(float)))
    {
    }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return 1 << 20; }

protected:
    qint64 readData(char* data, qint64 maxlen) override
    {
        const qint64 frames = maxlen / m_bytesPerFrame;
        if (frames <= 0)
            return 0;
        m_source->render(reinterpret_cast<float*>(data), frames);
        return frames * m_bytesPerFrame;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    AudioRenderSource* m_source;
    int m_bytesPerFrame;
};

QString describeError(QAudio::Error error)
{
    switch (error) {
    case QAudio::OpenError:
        return QStringLiteral("the audio device cannot be opened");
    case QAudio::IOError:
        return QStringLiteral("the audio device failed while playing");
    case QAudio::UnderrunError:
        return QStringLiteral("the audio device ran out of data");
    case QAudio::FatalError:
        return QStringLiteral("the audio device is not usable");
    case QAudio::NoError:
        break;
    }
    return {};
}

} // namespace

QtAudioOutput::QtAudioOutput()
{
    m_thread.setObjectName(QStringLiteral("audio output"));
    m_thread.start(QThread::TimeCriticalPriority);
    m_host = new QObject;
    m_host->moveToThread(&m_thread);
}

QtAudioOutput::~QtAudioOutput()
{
    stop();
    QMetaObject::invokeMethod(
        m_host, [host = m_host] { delete host; }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

bool QtAudioOutput::deviceAvailable()
{
    return !QMediaDevices::defaultAudioOutput().isNull();
}

bool QtAudioOutput::start(const OutputFormat& format, AudioRenderSource* source)
{
    stop();
    bool ok = false;
    QMetaObject::invokeMethod(
        m_host, [&] { openOnThread(format, source, &ok); }, Qt::BlockingQueuedConnection);
    return ok;
}

void QtAudioOutput::stop()
{
    QMetaObject::invokeMethod(
        m_host, [this] { closeOnThread(); }, Qt::BlockingQueuedConnection);
}

void QtAudioOutput::openOnThread(const OutputFormat& format, AudioRenderSource* source, bool* ok)
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) {
        m_error = QStringLiteral("no audio output device");
        return;
    }
    QAudioFormat qformat;
    qformat.setSampleRate(format.sampleRate);
    qformat.setChannelCount(format.channels);
    qformat.setSampleFormat(QAudioFormat::Float);
    m_bytesPerSecond = format.sampleRate * format.channels * int(sizeof(float));

    m_sink = new QAudioSink(device, qformat, m_host);
    m_sink->setBufferSize(static_cast<qsizetype>(m_bytesPerSecond * kBufferSeconds));
    QObject::connect(m_sink, &QAudioSink::stateChanged, m_host, [this](QAudio::State) {
        if (m_sink && m_sink->error() != QAudio::NoError)
            qInfo("Audio output error: %s", qPrintable(describeError(m_sink->error())));
    });
    m_device = new RenderDevice(source, format.channels, m_host);
    m_device->open(QIODevice::ReadOnly);
    m_sink->start(m_device);
    if (m_sink->error() != QAudio::NoError || m_sink->state() == QAudio::StoppedState) {
        m_error = describeError(m_sink->error());
        if (m_error.isEmpty())
            m_error = QStringLiteral("the audio device did not start");
        closeOnThread();
        return;
    }
    m_description = device.description();
    m_latency.store(double(m_sink->bufferSize()) / m_bytesPerSecond, std::memory_order_relaxed);
    // What the device still holds is sampled here rather than in the read
    // callback, which must stay a plain copy.
    m_latencyTimer = new QTimer(m_host);
    m_latencyTimer->setTimerType(Qt::PreciseTimer);
    QObject::connect(m_latencyTimer, &QTimer::timeout, m_host, [this] {
        if (!m_sink)
            return;
        const qsizetype queued = std::max<qsizetype>(m_sink->bufferSize() - m_sink->bytesFree(), 0);
        m_latency.store(double(queued) / m_bytesPerSecond, std::memory_order_relaxed);
    });
    m_latencyTimer->start(20);
    *ok = true;
}

void QtAudioOutput::closeOnThread()
{
    delete m_latencyTimer;
    m_latencyTimer = nullptr;
    if (m_sink) {
        m_sink->stop();
        delete m_sink;
        m_sink = nullptr;
    }
    delete m_device;
    m_device = nullptr;
}
