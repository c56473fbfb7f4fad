// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

class Defaults;

namespace TestSupport {

// Path of a generated audio fixture (tests/fixtures/make-audio-fixtures.sh).
QString fixture(const QString& name);

// Path of the kelmora-cli binary built with the tests.
QString cliPath();

struct CliResult
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

// Runs kelmora-cli to its end with these changes to the environment (a null
// value removes the variable) and in this folder; a crash or a hang fails the test.
CliResult runCli(const QStringList& args, const QMap<QString, QString>& environment = {},
                 const QString& workingDirectory = {});

// Runs ffmpeg (quiet, never asking) with the arguments; a failure fails the
// test and returns false.
bool runFfmpeg(const QStringList& args);

// A whole file's bytes; a file that cannot be read fails the test.
QByteArray readFile(const QString& path);
// Writes the bytes as the whole file; a failure fails the test.
void writeFile(const QString& path, const QByteArray& bytes);

// Collects the application's log lines while it lives.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    const QStringList& lines() const;
    bool contains(const QString& line) const;
    void clear();
};

// A defaults store on a fresh file in a temporary folder.
class TempDefaults
{
public:
    TempDefaults();
    ~TempDefaults();
    Defaults& store() { return *m_store; }
    QString path() const;
    // Re-opens the same file, as a new run of the application would.
    void reopen();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<Defaults> m_store;
};

// Drains queued events so that main-thread hand-backs arrive.
void processEvents();

} // namespace TestSupport
