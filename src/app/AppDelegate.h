#pragma once

#include "app/SessionServices.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>

class CheckAppUpdate;
class MainWindowController;
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
    static QString localizedHelpText();
    // Where the help page is installed, or empty when it is not.
    static QString helpPagePath();

    MainWindowController* mainWindowController() const { return m_mainWindowController; }

    // Help > Check for Updates…: one reported lookup, its answer as a sheet on
    // the main window.
    void checkUpdate();

private:
    ViewController* session() const;

    SessionServices m_services;
    QPointer<MainWindowController> m_mainWindowController;
    std::unique_ptr<UpdateAlertSheets> m_updateAlerts;
    CheckAppUpdate* m_updateChecker = nullptr;
};
