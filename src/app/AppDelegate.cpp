// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppDelegate.h"

#include "app/AutoSaveQueue.h"
#include "app/MainWindowController.h"
#include "app/UpdateAlertSheets.h"
#include "app/ViewController.h"
#include "common/Log.h"
#include "dialogs/Dialogs.h"
#include "localization/LanguageManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceViewController.h"
#include "preferences/ShortcutBindings.h"
#include "transcript/DocumentManager.h"
#include "update/CheckAppUpdate.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QKeySequence>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>

AppDelegate::AppDelegate(const SessionServices& services, QObject* parent)
    : QObject(parent), m_services(services)
{
}

AppDelegate::~AppDelegate()
{
    delete m_preferenceWindowController;
    // The checker's pending answer must not reach alerts that are gone.
    delete m_updateChecker;
    delete m_mainWindowController;
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_mainWindowController = new MainWindowController(m_services);
    m_mainWindowController->setAttribute(Qt::WA_DeleteOnClose, false);
    Dialogs::setMainWindow(m_mainWindowController);
    MainWindowController* window = m_mainWindowController;
    connect(window, &MainWindowController::helpRequested, this, &AppDelegate::showHelp);
    connect(window, &MainWindowController::sizePresetRequested, this, &AppDelegate::changeSize);
    connect(window, &MainWindowController::preferencesRequested, this,
            &AppDelegate::showPreferences);
    connect(window, &MainWindowController::windowClosed, this, &AppDelegate::mainWindowClosed);
    connect(window, &MainWindowController::closeCancelled, this,
            [this] { m_restartPending = false; });
    connect(window, &MainWindowController::checkForUpdatesRequested, this,
            &AppDelegate::checkUpdate);
    window->show();
    continueStartup();
}

bool AppDelegate::applicationOpenFile(const QString& path)
{
    const QString local = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toLocalFile();
    if (ViewController* session = this->session())
        session->openFileFromPath(local);
    return true;
}

ViewController* AppDelegate::session() const
{
    MainWindowController* window = m_mainWindowController.data();
    return window ? window->viewController() : nullptr;
}

void AppDelegate::continueStartup()
{
    setupApplicationDirectories();
}

void AppDelegate::setupApplicationDirectories()
{
    // A store that cannot be made now is reported when a save needs it.
    m_services.documents.createDirectory(DocumentManager::TranscriptionsFolder);
}

void AppDelegate::changeSize(int width, int height)
{
    if (ViewController* session = this->session())
        session->resizeWindowToWidth(width, height);
}

QString AppDelegate::localizedHelpText(Defaults& defaults)
{
    const ShortcutSet shortcuts = storedShortcuts(ObjectStorage(defaults));
    auto bound = [&shortcuts](ShortcutAction action) {
        const auto& bindings = shortcutBindings();
        for (std::size_t i = 0; i < bindings.size(); ++i) {
            if (bindings[i].action == action)
                return Keyboard::shortcutText(shortcuts[i].keyCode(), shortcuts[i].modifierFlags());
        }
        return QString();
    };
    auto menuKey = [](QKeySequence::StandardKey key) {
        return QKeySequence(key).toString(QKeySequence::NativeText);
    };
    return stringWithFormat(LocalizedString(Texts::HelpGuide),
                            {menuKey(QKeySequence::Open), bound(ShortcutAction::PlayPause),
                             bound(ShortcutAction::NextSegment),
                             bound(ShortcutAction::PreviousSegment),
                             bound(ShortcutAction::RepeatPlay), bound(ShortcutAction::PlayFirst),
                             bound(ShortcutAction::SplitAudio), menuKey(QKeySequence::Save)});
}

QString AppDelegate::helpPagePath()
{
    // Installed beside the program in a build tree, under the data folders
    // once installed.
    const QString appDir = QCoreApplication::applicationDirPath();
    QStringList candidates{appDir + QStringLiteral("/help.html"),
                           appDir + QStringLiteral("/../share/kelmora/help.html")};
    for (const QString& dir : QStandardPaths::standardLocations(QStandardPaths::AppDataLocation))
        candidates << dir + QStringLiteral("/help.html");
    for (const QString& candidate : candidates) {
        if (QFileInfo(candidate).isFile())
            return QFileInfo(candidate).canonicalFilePath();
    }
    return QString();
}

void AppDelegate::showHelp()
{
    qCInfo(lcApp, "Resource path: %s", qUtf8Printable(QCoreApplication::applicationDirPath()));
    const QString page = helpPagePath();
    if (!page.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(page)))
        return;
    // Information, not a fault: the same alert as ever, with the keys in use.
    const QString title = LocalizedString(Texts::Help);
    const QString text = localizedHelpText(m_services.defaults);
    QMessageBox box(Dialogs::mainWindow());
    box.setObjectName(QStringLiteral("helpAlert"));
    box.setIcon(QMessageBox::Information);
    box.setWindowTitle(title);
    box.setText(title);
    box.setInformativeText(text);
    box.setAccessibleName(title);
    box.setAccessibleDescription(text);
    box.addButton(LocalizedString(Texts::OK), QMessageBox::AcceptRole);
    box.exec();
}

PreferenceViewController* AppDelegate::preferenceWindowController() const
{
    return m_preferenceWindowController.data();
}

void AppDelegate::showPreferences()
{
    if (!m_preferenceWindowController) {
        LanguageManager& language = m_language ? *m_language : LanguageManager::sharedInstance();
        auto* controller = new PreferenceViewController(m_services.engine, m_services.defaults,
                                                        m_services.center, language);
        connect(controller, &PreferenceViewController::restartRequested, this,
                &AppDelegate::restartApp);
        m_preferenceWindowController = controller;
    }
    PreferenceViewController* window = m_preferenceWindowController;
    QWidget* anchor = m_mainWindowController.data();
    const QScreen* screen = anchor ? anchor->screen() : QGuiApplication::primaryScreen();
    if (screen) {
        QRect frame = window->frameGeometry();
        frame.moveCenter(screen->availableGeometry().center());
        window->move(frame.topLeft());
    }
    window->show();
    window->raise();
    window->activateWindow();
}

void AppDelegate::restartApp()
{
    MainWindowController* window = m_mainWindowController;
    if (!window)
        return;
    m_restartPending = true;
    // The last keystrokes go to the store first, throttle or not.
    if (ViewController* session = this->session()) {
        session->autoSaveTranscription(true);
        m_services.autoSave.waitForDone();
    }
    window->close();
}

void AppDelegate::mainWindowClosed()
{
    // Closing the main window ends the application, the preferences included.
    if (PreferenceViewController* preferences = m_preferenceWindowController)
        preferences->close();
    if (!m_restartPending)
        return;
    m_restartPending = false;
    emit aboutToRestart();
    const QString program = QCoreApplication::applicationFilePath();
    // A fresh instance, as a new launch would be: the command line that
    // started this one may name a file the learner left long ago. The typing
    // is in the store already and comes back when the lesson is opened.
    const QStringList arguments;
    const bool started = m_startProcess ? m_startProcess(program, arguments)
                                        : QProcess::startDetached(program, arguments);
    if (!started)
        qCWarning(lcApp, "Could not start %s again", qUtf8Printable(program));
    // Every window is closed by now; exit() leaves the event loop without
    // asking them again.
    QCoreApplication::exit(0);
}

void AppDelegate::checkUpdate()
{
    if (!m_updateChecker) {
        m_updateAlerts = std::make_unique<UpdateAlertSheets>(m_mainWindowController.data());
        m_updateChecker = new CheckAppUpdate(m_services.defaults, *m_updateAlerts, this);
    }
    m_updateChecker->checkForUpdates(true);
}
