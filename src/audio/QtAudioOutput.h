// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audio/AudioOutput.h"

#include <QObject>
#include <QThread>
#include <atomic>
#include <memory>

class QAudioDevice;
class QAudioFormat;
class QAudioSink;
class QIODevice;
class QTimer;

// The default sound device through Qt Multimedia's QAudioSink in pull mode.
// The sink lives on a thread of its own, so a busy window never starves it;
// its read callback is the player's render(), which only copies.
class QtAudioOutput : public AudioOutput
{
public:
    // Qt 6.4 never starts a pull-mode sink whose buffer is 50 ms or less; at
    // 120 ms a machine busy with other work already starves it now and then,
    // and at 100 ms a quick pause and play can leave it silent for good.
    static constexpr double kBufferSeconds = 0.2;

    QtAudioOutput();
    ~QtAudioOutput() override;

    // True when the machine reports a default output device.
    static bool deviceAvailable();

    bool start(const OutputFormat& format, AudioRenderSource* source) override;
    void stop() override;
    double framesHeard() const override;
    // A new stream in place of the old one: the server drops what it held.
    void discardPending() override;
    bool startsFreshStreams() const override { return true; }
    bool isSilent() const override { return false; }
    QString description() const override { return m_description; }
    QString errorString() const override { return m_error; }

private:
    void openOnThread(const OutputFormat& format, AudioRenderSource* source, bool* ok);
    void closeOnThread();
    void discardOnThread();
    void makeSink();
    QIODevice* makeDevice();
    // The sink's reads, for the stream numbered `stream`.
    void readOnThread(int stream, float* out, qint64 frames);
    void beginFreshOnThread();
    void retireOnThread();
    void abandonFreshOnThread();
    void askForDataNow(const QObjectList& before);

    QThread m_thread;
    QObject* m_host = nullptr; // lives on m_thread; owns the sink, device and timer
    QAudioSink* m_sink = nullptr;
    std::unique_ptr<QAudioDevice> m_audioDevice;
    std::unique_ptr<QAudioFormat> m_audioFormat;
    QIODevice* m_device = nullptr;
    AudioRenderSource* m_source = nullptr;
    int m_channels = 2;
    // Sink thread only: the stream whose reads reach the source, and the
    // one being let go after a switch to a fresh stream.
    int m_liveStream = 0;
    QAudioSink* m_oldSink = nullptr;
    QIODevice* m_oldDevice = nullptr;
    qint64 m_oldBase = 0;
    bool m_freshPosted = false;  // a switch is asked for
    bool m_freshBegun = false;   // the new stream has had its first read
    qint64 m_takenAtFresh = 0;
    QTimer* m_playedTimer = nullptr;
    int m_bytesPerSecond = 0;
    // Frames the sink has taken from the source, and when (steady clock,
    // seconds) the first of them would have been heard had the sound run
    // without a break: the server's last word on how far it has played.
    std::atomic<qint64> m_taken{0};
    std::atomic<double> m_origin{-1.0};
    int m_sampleRate = 0;
    qint64 m_streamBase = 0; // frames taken before the present stream began (sink thread)
    QString m_description;
    QString m_error;
};
