// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/QtAudioOutput.h"

#include "audio/ThreadPriority.h"
#include "common/Log.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <functional>

namespace {

// The sink's data source: every read is answered in full (silence when the
// player has nothing), so the sink never goes idle.
class RenderDevice : public QIODevice
{
public:
    using Reader = std::function<void(float* out, qint64 frames)>;
    RenderDevice(int stream, Reader reader, int channels, QObject* parent)
        : QIODevice(parent), m_stream(stream), m_reader(std::move(reader)),
          m_bytesPerFrame(channels * int(sizeof(float)))
    {
    }
    int stream() const { return m_stream; }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return 1 << 20; }

protected:
    qint64 readData(char* data, qint64 maxlen) override
    {
        const qint64 frames = maxlen / m_bytesPerFrame;
        if (frames <= 0)
            return 0;
        m_reader(reinterpret_cast<float*>(data), frames);
        return frames * m_bytesPerFrame;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    int m_stream;
    Reader m_reader;
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

double steadySeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace

QtAudioOutput::QtAudioOutput()
{
    m_thread.setObjectName(QStringLiteral("audio output"));
    m_thread.start(QThread::TimeCriticalPriority);
    m_host = new QObject;
    m_host->moveToThread(&m_thread);
    QMetaObject::invokeMethod(m_host, [] { ThreadPriority::raiseForSound(); });
}

QtAudioOutput::~QtAudioOutput()
{
    stop();
    QMetaObject::invokeMethod(
        m_host, [host = m_host] { delete host; }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

double QtAudioOutput::framesHeard() const
{
    const double origin = m_origin.load(std::memory_order_acquire);
    if (origin < 0.0)
        return 0.0;
    const double heard = (steadySeconds() - origin) * m_sampleRate;
    return std::clamp(heard, 0.0, double(m_taken.load(std::memory_order_acquire)));
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

void QtAudioOutput::discardPending()
{
    QMetaObject::invokeMethod(
        m_host, [this] { discardOnThread(); }, Qt::BlockingQueuedConnection);
}

void QtAudioOutput::readOnThread(int stream, float* out, qint64 frames)
{
    if (stream != m_liveStream) {
        // The stream being let go: what it still gets is never heard.
        std::fill(out, out + frames * m_channels, 0.0f);
        return;
    }
    const bool first = m_oldSink && !m_freshBegun;
    if (first) {
        m_freshBegun = true;
        m_takenAtFresh = m_taken.load(std::memory_order_relaxed);
        m_source->resumeInFreshStream();
    }
    const qsizetype sound = m_source->render(out, frames);
    m_taken.fetch_add(frames, std::memory_order_release);
    if (first) {
        // With its first sound, the new stream takes over and the old one
        // goes; without, the switch is given up and the old one plays on.
        if (sound > 0)
            QMetaObject::invokeMethod(m_host, [this] { retireOnThread(); }, Qt::QueuedConnection);
        else
            QMetaObject::invokeMethod(m_host, [this] { abandonFreshOnThread(); },
                                      Qt::QueuedConnection);
    }
    if (m_source->holdsForFreshStream() && !m_freshPosted) {
        m_freshPosted = true;
        QMetaObject::invokeMethod(m_host, [this] { beginFreshOnThread(); }, Qt::QueuedConnection);
    }
}

void QtAudioOutput::beginFreshOnThread()
{
    m_freshPosted = false;
    // A pause or a move since it was asked has let go of the hold.
    if (!m_sink || !m_source->holdsForFreshStream())
        return;
    // A switch still under way: its old stream goes at once.
    retireOnThread();
    // The old sink plays on from what it holds while the new one opens and
    // takes its first sound; only then is the old one let go, so the gap
    // between the two is the server's, not the opening's.
    m_oldSink = m_sink;
    m_oldDevice = m_device;
    m_oldBase = m_streamBase;
    m_freshBegun = false;
    m_device = makeDevice();
    const QObjectList before = m_host->children();
    makeSink();
    m_sink->start(m_device);
    askForDataNow(before);
}

void QtAudioOutput::retireOnThread()
{
    if (!m_oldSink)
        return;
    // Stopping a sink disconnects its stream: the server drops what it held,
    // and those frames count as heard from now on.
    m_oldSink->stop();
    delete m_oldSink;
    m_oldSink = nullptr;
    delete m_oldDevice;
    m_oldDevice = nullptr;
    const qint64 base = m_freshBegun ? m_takenAtFresh : m_taken.load(std::memory_order_acquire);
    m_streamBase = base;
    m_origin.store(steadySeconds() - double(base) / m_sampleRate, std::memory_order_release);
}

void QtAudioOutput::abandonFreshOnThread()
{
    if (!m_oldSink)
        return;
    // The new stream's one read never sounds: counted as heard at once.
    const qint64 unheard = m_taken.load(std::memory_order_acquire) - m_takenAtFresh;
    m_sink->stop();
    delete m_sink;
    delete m_device;
    m_sink = m_oldSink;
    m_device = m_oldDevice;
    m_streamBase = m_oldBase + unheard;
    m_oldSink = nullptr;
    m_oldDevice = nullptr;
    m_liveStream = static_cast<RenderDevice*>(m_device)->stream();
}

QIODevice* QtAudioOutput::makeDevice()
{
    const int stream = ++m_liveStream;
    auto* device = new RenderDevice(
        stream, [this, stream](float* out, qint64 frames) { readOnThread(stream, out, frames); },
        m_channels, m_host);
    device->open(QIODevice::ReadOnly);
    return device;
}

void QtAudioOutput::askForDataNow(const QObjectList& before)
{
    // Qt 6.4's pulse sink first asks for data one period (20 ms) after it
    // starts; a stream switch asks at once, through the sink's own slot,
    // when it has one.
    for (QObject* child : m_host->children()) {
        if (child->metaObject()->indexOfMethod("userFeed()") >= 0 && !before.contains(child))
            QMetaObject::invokeMethod(child, "userFeed", Qt::QueuedConnection);
    }
}

void QtAudioOutput::discardOnThread()
{
    if (!m_sink)
        return;
    retireOnThread();
    // QAudioSink cannot flush, but stopping it disconnects its stream, and the
    // server drops whatever that stream still held. A new sink then opens a
    // new stream at once (the server is already running, so it takes one
    // round trip), and the count of what was taken goes on across the two.
    // Not the same sink started again: Qt 6.4's pulse sink, restarted while
    // sound flows, soon stops asking for data.
    m_sink->stop();
    delete m_sink;
    m_sink = nullptr;
    const qint64 taken = m_taken.load(std::memory_order_acquire);
    m_streamBase = taken;
    m_origin.store(steadySeconds() - double(taken) / m_sampleRate, std::memory_order_release);
    makeSink();
    m_sink->start(m_device);
    if (m_sink->error() != QAudio::NoError || m_sink->state() == QAudio::StoppedState)
        qCInfo(lcAudio, "Audio output error: %s", qPrintable(describeError(m_sink->error())));
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

    m_audioDevice = std::make_unique<QAudioDevice>(device);
    m_audioFormat = std::make_unique<QAudioFormat>(qformat);
    makeSink();
    m_taken.store(0, std::memory_order_relaxed);
    m_origin.store(-1.0, std::memory_order_relaxed);
    m_streamBase = 0;
    m_sampleRate = format.sampleRate;
    m_source = source;
    m_channels = format.channels;
    m_device = makeDevice();
    m_sink->start(m_device);
    if (m_sink->error() != QAudio::NoError || m_sink->state() == QAudio::StoppedState) {
        m_error = describeError(m_sink->error());
        if (m_error.isEmpty())
            m_error = QStringLiteral("the audio device did not start");
        closeOnThread();
        return;
    }
    m_description = device.description();
    // libpulse's event loop thread hands what the sink was given to the
    // server; it must not wait behind other work any more than this one.
    ThreadPriority::raiseThreadsNamed("threaded-ml");
    // How far the server has played is asked here, on the sink's thread,
    // rather than in the read callback, which must stay a plain copy.
    m_playedTimer = new QTimer(m_host);
    m_playedTimer->setTimerType(Qt::PreciseTimer);
    QObject::connect(m_playedTimer, &QTimer::timeout, m_host, [this] {
        if (!m_sink)
            return;
        // While a new stream opens, the old one still plays and keeps time.
        QAudioSink* sink = m_oldSink ? m_oldSink : m_sink;
        const qint64 base = m_oldSink ? m_oldBase : m_streamBase;
        const double taken = double(m_taken.load(std::memory_order_acquire));
        const double played =
            std::min(double(base) + double(sink->processedUSecs()) * m_sampleRate / 1e6, taken);
        m_origin.store(steadySeconds() - played / m_sampleRate, std::memory_order_release);
    });
    m_playedTimer->start(20);
    *ok = true;
}

void QtAudioOutput::makeSink()
{
    m_sink = new QAudioSink(*m_audioDevice, *m_audioFormat, m_host);
    m_sink->setBufferSize(static_cast<qsizetype>(m_bytesPerSecond * kBufferSeconds));
    QAudioSink* sink = m_sink;
    QObject::connect(sink, &QAudioSink::stateChanged, m_host, [sink](QAudio::State) {
        if (sink->error() == QAudio::NoError)
            return;
        // The sink runs dry whenever nothing is fed (paused, between
        // segments): that is no error, and only a debugging rule shows it.
        if (sink->error() == QAudio::UnderrunError)
            qCDebug(lcAudio, "Audio output idle: %s", qPrintable(describeError(sink->error())));
        else
            qCInfo(lcAudio, "Audio output error: %s", qPrintable(describeError(sink->error())));
    });
}

void QtAudioOutput::closeOnThread()
{
    delete m_playedTimer;
    m_playedTimer = nullptr;
    retireOnThread();
    if (m_sink) {
        m_sink->stop();
        delete m_sink;
        m_sink = nullptr;
    }
    delete m_device;
    m_device = nullptr;
}
