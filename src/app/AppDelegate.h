// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SessionServices.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

class LanguageManager;
class MainWindowController;
class PreferenceViewController;
class CheckAppUpdate;
class UpdateAlertSheets;
class ViewController;

// The application-level commands: start-up, opening a file the desktop hands
// over, help, the window-size presets. Everything about the open file goes to
// the main window's session.
class AppDelegate : public QObject
{
    Q_OBJECT
public:
    explicit AppDelegate(const SessionServices& services, QObject* parent = nullptr);
    ~AppDelegate() override;

    // Builds and shows the main window, then finishes the start-up.
    void applicationDidFinishLaunching();
    // A path the desktop asks to open (the command line, "Open With").
    // Always true, whatever becomes of the file.
    bool applicationOpenFile(const QString& path);

    void showHelp();
    void changeSize(int width, int height);
    void continueStartup();
    void setupApplicationDirectories();
    // The help alert's text, naming the keys as they are bound now.
    static QString localizedHelpText(Defaults& defaults);
    // Where the help page is installed, or empty when it is not.
    static QString helpPagePath();

    MainWindowController* mainWindowController() const { return m_mainWindowController; }

    // The preferences window, made on first use and kept; each call centres
    // and shows it.
    void showPreferences();
    PreferenceViewController* preferenceWindowController() const;
    // The shared language manager unless a test gives its own.
    void setLanguageManager(LanguageManager& language) { m_language = &language; }

    // Saves what was typed, closes the main window (its save prompt may
    // still keep it open); once it has really closed, starts this program
    // again with the lesson the window showed (nothing else from the first
    // command line) and quits. A cancelled prompt cancels the restart.
    void restartApp();
    using ProcessStarter = std::function<bool(const QString& program, const QStringList& arguments)>;
    // How the new process is started (QProcess::startDetached unless a test
    // says otherwise).
    void setProcessStarter(ProcessStarter starter) { m_startProcess = std::move(starter); }
    // Help > Check for Updates…: one reported lookup, its answer as a sheet on
    // the main window.
    void checkUpdate();

signals:
    // Just before a restart starts the new process.
    void aboutToRestart();

private:
    ViewController* session() const;
    void mainWindowClosed();

    SessionServices m_services;
    QPointer<MainWindowController> m_mainWindowController;
    QPointer<PreferenceViewController> m_preferenceWindowController;
    LanguageManager* m_language = nullptr;
    ProcessStarter m_startProcess;
    bool m_restartPending = false;
    std::unique_ptr<UpdateAlertSheets> m_updateAlerts;
    CheckAppUpdate* m_updateChecker = nullptr;
};
