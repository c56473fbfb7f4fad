// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <memory>

// A private PulseAudio server with one null sink ("testsink", 48 kHz stereo)
// for tests that need real sound, and a recorder of the sink's monitor. Every
// process it starts is stopped by its PID when it goes away.
class PulseServer
{
public:
    // Starts the server and points this process (PULSE_SERVER) at it. Returns
    // null with *whyNot set when no server can run here.
    static std::unique_ptr<PulseServer> start(QString* whyNot);
    ~PulseServer();

    QString address() const { return m_address; }

    // Records the monitor as 16-bit mono at 48 kHz into a file.
    bool startRecording(QString* whyNot);
    // Stops the recorder and returns what it captured, as floats in -1..1.
    std::vector<float> stopRecording();

    // Times so far a playback stream (other than the server's own silence)
    // ran dry at the sink: its feeder was not scheduled in time, and the sink
    // played silence in the middle of its sound.
    int playbackUnderruns() const;

private:
    PulseServer() = default;
    void stopProcess(QProcess& process);
    QString logPath() const;

    QTemporaryDir m_dir;
    QString m_address;
    qint64 m_daemonPid = 0;
    QProcess m_silence; // keeps the sink from idling: its first stream would stall
    QProcess m_recorder;
    QString m_capturePath;
    QElapsedTimer m_recordingSince;
    qint64 m_bytesAtStart = 0;
};
