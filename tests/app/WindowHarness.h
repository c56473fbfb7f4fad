// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SessionServices.h"
#include "support/TestSupport.h"

#include <QImage>
#include <QList>
#include <QMessageBox>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <memory>

class AudioManager;
class AutoSaveQueue;
class Clock;
class DocumentManager;
class LanguageBundle;
class LanguageManager;
class MainWindowController;
class NotificationCenter;
class QDialog;
class QTimer;
class TranscriptionManager;
class ViewController;

// A main window of its own for each test: a fresh settings file, documents
// folder and engine playing into a silent output.
class WindowHarness
{
public:
    // With a language code the window is built in that language.
    // `dataHome` is the per-user data folder (a fresh one when empty).
    explicit WindowHarness(const QString& language = QString(), const QString& dataHome = QString());
    ~WindowHarness();

    MainWindowController& window() { return *m_window; }
    ViewController& session();
    AudioManager& engine() { return *m_engine; }
    NotificationCenter& center() { return *m_center; }
    Defaults& defaults() { return m_defaults.store(); }
    QString documentsPath() const { return m_documentsDir.path(); }
    AutoSaveQueue& autoSave() { return *m_autoSave; }
    // The parts the window runs on, for an application delegate of a test's own.
    SessionServices services();
    // Runs the engine's and the session's timers on the given clock.
    void setClock(Clock& clock);
    // The auto-save's clock, which moves only when a test moves it (it starts
    // well past the five-second throttle of the first save).
    void advanceAutoSaveClock(double seconds) { m_autoSaveNow += seconds; }
    // Waits for queued auto-saves and lets their main-thread lines run.
    void finishAutoSaves();
    // Where the open file's transcript is stored (empty with no file).
    QString storePath();

    // Opens through the direct road and waits for the window to show the
    // result; false when it did not finish in time.
    bool open(const QString& path, bool* success = nullptr);

    // Saves the window's picture as NAME.png among the test run's screenshots.
    QImage screenshot(const QString& name);

private:
    QTemporaryDir m_dataHome;
    TestSupport::TempDefaults m_defaults;
    QTemporaryDir m_documentsDir;
    std::unique_ptr<NotificationCenter> m_center;
    std::unique_ptr<DocumentManager> m_documents;
    std::unique_ptr<TranscriptionManager> m_transcriptions;
    std::unique_ptr<AudioManager> m_engine;
    double m_autoSaveNow = 1000.0;
    std::unique_ptr<AutoSaveQueue> m_autoSave;
    std::unique_ptr<LanguageBundle> m_bundle;
    std::unique_ptr<LanguageManager> m_language;
    std::unique_ptr<MainWindowController> m_window;
};

// What an alert said, and which of its buttons was pressed.
struct AlertSeen
{
    QString title;
    QString text;
    QString informativeText;
    QStringList buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

// Answers every alert (a QMessageBox) that appears while it lives by pressing
// the button with the given text, and notes what each said. It looks from a
// timer, which also fires inside a modal alert's own event loop.
class AlertAnswerer
{
public:
    explicit AlertAnswerer(const QString& buttonText);
    ~AlertAnswerer();
    AlertAnswerer(const AlertAnswerer&) = delete;
    AlertAnswerer& operator=(const AlertAnswerer&) = delete;

    const QList<AlertSeen>& seen() const { return m_seen; }
    // Runs the event loop until `count` alerts were answered.
    bool waitForAlerts(qsizetype count, int timeoutMs = 10000);

private:
    QString m_buttonText;
    QList<AlertSeen> m_seen;
    std::unique_ptr<QTimer> m_poll;
};

// Runs the event loop until the condition holds or the time is up.
bool waitFor(const std::function<bool()>& condition, int timeoutMs = 10000);

// The question a plain reference text brings, which language to align it
// in, once it shows; null when none came in time.
QDialog* alignmentQuestion(int timeoutMs = 10000);
// Answers that question "Don't Align" with Escape, as most tests of a plain
// text do, and activates the window again; false when no question came or
// it stayed.
bool dontAlign();
