#pragma once

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
