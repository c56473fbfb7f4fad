// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainWindowController.h"

#include "app/IconManager.h"
#include "app/KeyDownMonitor.h"
#include "app/RecentDocuments.h"
#include "app/ViewController.h"
#include "audio/AudioDecoder.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "dialogs/Dialogs.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/ShortcutBindings.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QToolBar>

MainWindowController::MainWindowController(const SessionServices& services, QWidget* parent)
    : QMainWindow(parent), m_engine(services.engine), m_center(services.center),
      m_defaults(services.defaults), m_viewController(new ViewController(services, this))
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(LocalizedString(Texts::AppName));
    setWindowIcon(IconManager::shared().iconForName(QStringLiteral("kelmora")));
    setCentralWidget(m_viewController);
    setupToolbar();
    setupMenus();
    for (const char* name :
         {Notifications::AudioPlayStop, Notifications::AudioPlaying,
          Notifications::AudioPlaybackDidPause, Notifications::AudioPlaybackDidResume}) {
        m_center.addObserver(
            name, this, [this](const NotificationCenter::Notification&) { playStatusDidChange(); });
    }
    resize(1280, 800);
}

MainWindowController::~MainWindowController()
{
    m_center.removeObserver(this);
}

void MainWindowController::setupToolbar()
{
    QToolBar* toolbar = addToolBar(LocalizedString(Texts::Toolbar));
    toolbar->setObjectName(QStringLiteral("mainToolbar"));
    toolbar->setMovable(false);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    toolbar->setIconSize(QSize(24, 24));
    IconManager& icons = IconManager::shared();

    auto add = [&](const char* identifier, const char* icon, const char* label, const char* tip) {
        QAction* action =
            toolbar->addAction(icons.iconForName(QLatin1String(icon)), LocalizedString(label));
        action->setObjectName(QLatin1String(identifier));
        action->setToolTip(LocalizedString(tip));
        action->setStatusTip(LocalizedString(tip));
        return action;
    };
    m_openButton = add("open", "open", Texts::ToolbarOpen, Texts::TipOpen);
    connect(m_openButton, &QAction::triggered, this, [this] { m_viewController->openFile(); });

    m_playPauseButton = add("playPause", "play", Texts::ToolbarPlayPause, Texts::TipPlayPause);
    connect(m_playPauseButton, &QAction::triggered, this,
            [this] { m_viewController->togglePlayPause(); });
    needsLesson(m_playPauseButton);

    m_repeatButton = add("repeatMode", m_engine.isRepeatMode() ? "repeat.1" : "forward",
                         Texts::Repeat, Texts::TipRepeat);
    connect(m_repeatButton, &QAction::triggered, this, &MainWindowController::toolbarItemRepeat);
    needsLesson(m_repeatButton);

    QAction* exportButton = add("export", "export", Texts::ToolbarExport, Texts::TipExport);
    connect(exportButton, &QAction::triggered, this,
            [this] { m_viewController->saveTranscription(); });
    needsLesson(exportButton);
    QAction* settings = add("settings", "settings", Texts::ToolbarSettings, Texts::TipSettings);
    connect(settings, &QAction::triggered, this, &MainWindowController::preferencesRequested);
    QAction* import = add("import", "import", Texts::ToolbarImport, Texts::TipImport);
    connect(import, &QAction::triggered, this, [this] { m_viewController->importTranscription(); });
    needsLesson(import);
    QAction* clear = add("clear", "clear", Texts::ToolbarClear, Texts::TipClear);
    connect(clear, &QAction::triggered, this, [this] { m_viewController->clearTranscription(); });
    needsLesson(clear);
    QAction* split = add("split", "split", Texts::ToolbarSplit, Texts::TipSplit);
    connect(split, &QAction::triggered, this,
            [this] { m_viewController->splitSegmentAtPlayHead(); });
    needsLesson(split);
    QAction* music = add("importFromMusicLibrary", "music", Texts::ToolbarMusic, Texts::TipMusic);
    connect(music, &QAction::triggered, this,
            &MainWindowController::toolbarItemImportFromMusicLibrary);

    QAction* reference =
        add("reference", "reference", Texts::ToolbarReference, Texts::TipReference);
    connect(reference, &QAction::triggered, this,
            [this] { m_viewController->attachReferenceText(); });
    needsLesson(reference);
    // Only a lesson with a reference text has anything to check.
    m_checkButton = add("check", "check", Texts::ToolbarCheck, Texts::TipCheck);
    connect(m_checkButton, &QAction::triggered, this,
            [this] { m_viewController->checkCurrentSegment(); });
    m_checkButton->setVisible(false);
}

void MainWindowController::setupMenus()
{
    auto item = [this](QMenu* menu, const char* name, const char* text, auto slot) {
        QAction* action = menu->addAction(LocalizedString(text));
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    auto addMenu = [this](const char* name, const char* text) {
        QMenu* menu = menuBar()->addMenu(LocalizedString(text));
        menu->setObjectName(QLatin1String(name));
        return menu;
    };

    QMenu* file = addMenu("menuFile", Texts::MenuFile);
    item(file, "menuOpen", Texts::MenuOpen, [this] {
        m_viewController->openFile();
    })->setShortcut(QKeySequence::Open);
    m_recentMenu = file->addMenu(LocalizedString(Texts::MenuOpenRecent));
    m_recentMenu->setObjectName(QStringLiteral("menuOpenRecent"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindowController::rebuildRecentMenu);
    rebuildRecentMenu();
    file->addSeparator();
    needsLesson(item(file, "menuImportDictation", Texts::MenuImportDictation,
                     [this] { m_viewController->importTranscription(); }));
    needsLesson(item(file, "menuRecoverDictation", Texts::MenuRecoverDictation,
                     [this] { m_viewController->recoverEarlierDictation(); }));
    item(file, "menuImportFromMusic", Texts::MenuImportFromMusic,
         &MainWindowController::toolbarItemImportFromMusicLibrary);
    needsLesson(item(file, "menuAttachReference", Texts::MenuAttachReference,
                     [this] { m_viewController->attachReferenceText(); }));
    m_referenceCommands.append(item(file, "menuRemoveReference", Texts::MenuRemoveReference,
                                    [this] { m_viewController->removeReferenceText(); }));
    QAction* save = item(file, "menuExport", Texts::MenuExport,
                         [this] { m_viewController->saveTranscription(); });
    save->setShortcut(QKeySequence::Save);
    needsLesson(save);
    file->addSeparator();
    item(file, "menuQuit", Texts::MenuQuit, &QWidget::close)->setShortcut(QKeySequence::Quit);

    QMenu* edit = addMenu("menuEdit", Texts::MenuEdit);
    setupEditMenu(edit);
    needsLesson(item(edit, "menuClearDictation", Texts::MenuClearDictation,
                     [this] { m_viewController->clearTranscription(); }));
    edit->addSeparator();
    QAction* preferences = item(edit, "menuPreferences", Texts::MenuPreferences,
                                &MainWindowController::preferencesRequested);
    preferences->setMenuRole(QAction::PreferencesRole);
    preferences->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));

    QMenu* view = addMenu("menuView", Texts::MenuView);
    QMenu* sizes = view->addMenu(LocalizedString(Texts::MenuWindowSize));
    for (const QSize& size :
         {QSize(1280, 800), QSize(1440, 900), QSize(1920, 1080), QSize(2560, 1600)}) {
        QAction* preset =
            sizes->addAction(QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
        connect(preset, &QAction::triggered, this,
                [this, size] { emit sizePresetRequested(size.width(), size.height()); });
    }
    view->addSeparator();
    m_hardSentencesItem = view->addAction(QString());
    m_hardSentencesItem->setObjectName(QStringLiteral("menuPractiseHard"));
    m_hardSentencesItem->setCheckable(true);
    connect(m_hardSentencesItem, &QAction::triggered, this, [this] {
        KeyDownMonitor::perform(ShortcutAction::PractiseHard, *m_viewController);
        // The mode stays off when the lesson has no hard sentence.
        m_hardSentencesItem->setChecked(m_viewController->isPractisingHardSentences());
    });
    connect(m_viewController, &ViewController::practisingHardSentencesChanged,
            m_hardSentencesItem, &QAction::setChecked);
    needsLesson(m_hardSentencesItem);
    connect(view, &QMenu::aboutToShow, this, &MainWindowController::updateViewMenu);
    updateViewMenu();

    setupPlaybackMenu();

    QMenu* help = addMenu("menuHelp", Texts::MenuHelp);
    item(help, "menuKelmoraHelp", Texts::MenuKelmoraHelp, &MainWindowController::helpRequested)
        ->setShortcut(QKeySequence::HelpContents);
    item(help, "menuCheckForUpdates", Texts::MenuCheckForUpdates,
         &MainWindowController::checkForUpdatesRequested);

    // Qt leaves F10 to the desktop, and on X11 no desktop takes it.
    auto* menuKey = new QAction(this);
    menuKey->setObjectName(QStringLiteral("openMenuBar"));
    menuKey->setShortcut(QKeySequence(Qt::Key_F10));
    menuKey->setShortcutContext(Qt::WindowShortcut);
    connect(menuKey, &QAction::triggered, this, &MainWindowController::openMenuBar);
    addAction(menuKey);

    connect(m_viewController, &ViewController::lessonShownChanged, this,
            &MainWindowController::lessonShownChanged);
    lessonShownChanged(m_viewController->hasSegmentsShown());
    connect(m_viewController, &ViewController::referenceTextChanged, this,
            &MainWindowController::referenceTextChanged);
    referenceTextChanged(m_viewController->hasReferenceText());
}

namespace {

// The Playback menu's items, in its order, with the command each one runs.
struct PlaybackItem
{
    const char* name;
    const char* text;
    ShortcutAction action;
    bool needsReference = false;
};
constexpr PlaybackItem kPlaybackItems[] = {
    {"menuPlayPause", Texts::MenuPlayPause, ShortcutAction::PlayPause},
    {"menuPreviousSegment", Texts::MenuPreviousSegment, ShortcutAction::PreviousSegment},
    {"menuNextSegment", Texts::MenuNextSegment, ShortcutAction::NextSegment},
    {"menuRepeatMode", Texts::MenuRepeatMode, ShortcutAction::RepeatPlay},
    {"menuFirstSegment", Texts::MenuFirstSegment, ShortcutAction::PlayFirst},
    {"menuSplitAudio", Texts::MenuSplitAudio, ShortcutAction::SplitAudio},
    {"menuCheck", Texts::MenuCheck, ShortcutAction::Check, true},
    {"menuShowNextWord", Texts::MenuShowNextWord, ShortcutAction::ShowNextWord, true},
};

} // namespace

void MainWindowController::setupPlaybackMenu()
{
    QMenu* menu = m_playbackMenu = menuBar()->addMenu(LocalizedString(Texts::MenuPlayback));
    menu->setObjectName(QStringLiteral("menuPlayback"));
    for (const PlaybackItem& entry : kPlaybackItems) {
        QAction* action = menu->addAction(LocalizedString(entry.text));
        action->setObjectName(QLatin1String(entry.name));
        action->setData(int(entry.action));
        const ShortcutAction command = entry.action;
        connect(action, &QAction::triggered, this,
                [this, command] { KeyDownMonitor::perform(command, *m_viewController); });
        if (entry.needsReference)
            m_referenceCommands.append(action);
        else
            needsLesson(action);
    }
    connect(menu, &QMenu::aboutToShow, this, &MainWindowController::updatePlaybackMenu);
    updatePlaybackMenu();
}

void MainWindowController::updatePlaybackMenu()
{
    // The keys are the key hook's, not the actions' own: a menu shortcut would
    // fire before the hook and take keys from the dictation rows. After a tab
    // a menu prints the text where it prints a shortcut.
    const ShortcutSet shortcuts = storedShortcuts(ObjectStorage(m_defaults));
    const auto& bindings = shortcutBindings();
    const QList<QAction*> actions = m_playbackMenu->actions();
    for (std::size_t i = 0; i < std::size(kPlaybackItems); ++i) {
        std::size_t binding = 0;
        while (bindings[binding].action != kPlaybackItems[i].action)
            ++binding;
        const KeyboardShortcut& key = shortcuts[binding];
        actions[qsizetype(i)]->setText(LocalizedString(kPlaybackItems[i].text) + QLatin1Char('\t') +
                                       Keyboard::shortcutText(key.keyCode(), key.modifierFlags()));
    }
}

void MainWindowController::openMenuBar()
{
    // The key reaches this action before the key hook: a learner who bound
    // F10 to one of the six keeps it for that.
    if (const std::optional<ShortcutAction> bound =
            matchStoredShortcut(ObjectStorage(m_defaults), Keyboard::KeyF10, 0)) {
        KeyDownMonitor::perform(*bound, *m_viewController);
        return;
    }
    const QList<QAction*> menus = menuBar()->actions();
    if (!menus.isEmpty())
        menuBar()->setActiveAction(menus.first());
}

void MainWindowController::needsLesson(QAction* command)
{
    m_lessonCommands.append(command);
}

void MainWindowController::lessonShownChanged(bool shown)
{
    for (QAction* command : std::as_const(m_lessonCommands))
        command->setEnabled(shown);
}

void MainWindowController::referenceTextChanged(bool attached)
{
    for (QAction* command : std::as_const(m_referenceCommands))
        command->setEnabled(attached);
    if (m_checkButton)
        m_checkButton->setVisible(attached);
}

void MainWindowController::rebuildRecentMenu()
{
    m_recentMenu->clear();
    RecentDocuments recent(m_defaults);
    for (const QString& path : recent.existingPaths()) {
        QAction* item = m_recentMenu->addAction(QFileInfo(path).fileName());
        item->setToolTip(path);
        connect(item, &QAction::triggered, this,
                [this, path] { m_viewController->openFileFromPath(path); });
    }
    if (!m_recentMenu->isEmpty())
        m_recentMenu->addSeparator();
    QAction* clear = m_recentMenu->addAction(LocalizedString(Texts::MenuClearRecent));
    clear->setEnabled(!recent.existingPaths().isEmpty());
    connect(clear, &QAction::triggered, this, [this] {
        RecentDocuments(m_defaults).clear();
        rebuildRecentMenu();
    });
}

void MainWindowController::playStatusDidChange()
{
    // The button shows the state the player is in, not what a press would do.
    if (m_playPauseButton)
        m_playPauseButton->setIcon(IconManager::shared().iconForName(
            m_engine.isPlaying() ? QStringLiteral("play") : QStringLiteral("pause")));
}

void MainWindowController::toolbarItemImportFromMusicLibrary()
{
    // Fewer types than the Open panel offers, as the music folder has always had.
    static const QStringList extensions{QStringLiteral("mp3"), QStringLiteral("m4r"),
                                        QStringLiteral("m4a"), QStringLiteral("wav"),
                                        QStringLiteral("aac"), QStringLiteral("flac")};
    auto* panel = new QFileDialog(this);
    panel->setObjectName(QStringLiteral("musicLibraryPanel"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilter(
        Dialogs::nameFilterForExtensions(LocalizedString(Texts::ToolbarMusic), extensions));
    panel->setDirectory(QStandardPaths::writableLocation(QStandardPaths::MusicLocation));
    panel->setWindowModality(Qt::WindowModal);
    connect(panel, &QFileDialog::fileSelected, this,
            &MainWindowController::handleSelectedMusicFile);
    panel->open();
}

void MainWindowController::handleSelectedMusicFile(const QString& path)
{
    if (path.isEmpty())
        return;
    // Only a file that opens as audio goes on; the rest of the road is the
    // direct one, without the Open panel's checks.
    AudioDecoder decoder;
    if (!decoder.open(path)) {
        Dialogs::showMsg(LocalizedString(Texts::ErrorOpeningFile), decoder.errorString());
        return;
    }
    m_viewController->openFileFromPath(path);
}

void MainWindowController::toolbarItemRepeat()
{
    m_viewController->toggleRepeat(m_repeatButton);
}

void MainWindowController::cleanupAndClose()
{
    m_viewController->syncJournal();
    m_viewController->savePracticeRecord();
    m_engine.stopPlayback();
    m_engine.closeAudioFile();
}

void MainWindowController::closePromptAnswered(bool save, bool dontSave)
{
    if (dontSave) {
        m_closeConfirmed = true;
        cleanupAndClose();
        QTimer::singleShot(0, this, &QWidget::close);
        return;
    }
    if (!save) {
        emit closeCancelled(); // everything stays as it was
        return;
    }
    // The save's completion holds the window weakly.
    QPointer<MainWindowController> self(this);
    m_viewController->saveTranscriptionWithCompletion([self](bool saved) {
        if (self.isNull())
            return;
        QMetaObject::invokeMethod(self.data(),
                                  saved ? &MainWindowController::closeAfterSave
                                        : &MainWindowController::closeCancelled,
                                  Qt::QueuedConnection);
    });
}

void MainWindowController::closeAfterSave()
{
    m_closeConfirmed = true;
    cleanupAndClose();
    close();
}

void MainWindowController::closeEvent(QCloseEvent* event)
{
    if (m_closeConfirmed || !m_viewController->hasSegmentsShown()) {
        cleanupAndClose();
        event->accept();
        emit windowClosed();
        return;
    }
    event->ignore();
    auto* box = new QMessageBox(this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Question);
    box->setWindowTitle(LocalizedString(Texts::SaveDictationTitle));
    box->setText(LocalizedString(Texts::SaveDictationTitle));
    QString informative = LocalizedString(Texts::SaveDictationMessage);
    if (m_viewController->lastSaveFailed())
        informative += QStringLiteral("\n\n") + LocalizedString(Texts::LastSaveFailed);
    box->setInformativeText(informative);
    box->setObjectName(QStringLiteral("saveDictationPrompt"));
    // One role for all three keeps them in this order on every desktop style.
    QPushButton* save = box->addButton(LocalizedString(Texts::Save), QMessageBox::ActionRole);
    QPushButton* dontSave =
        box->addButton(LocalizedString(Texts::DontSave), QMessageBox::ActionRole);
    QPushButton* cancel = box->addButton(LocalizedString(Texts::Cancel), QMessageBox::ActionRole);
    box->setDefaultButton(save);
    box->setEscapeButton(cancel);
    connect(box, &QMessageBox::finished, this, [this, box, save, dontSave] {
        closePromptAnswered(box->clickedButton() == save, box->clickedButton() == dontSave);
    });
    box->setWindowModality(Qt::WindowModal);
    box->open();
}

QString MainWindowController::mprisAudioPath() const
{
    return m_viewController->currentAudioPath();
}

void MainWindowController::mprisTogglePlayPause()
{
    m_viewController->togglePlayPause();
}

void MainWindowController::mprisNextSegment()
{
    m_viewController->playNextSegment();
}

void MainWindowController::mprisPreviousSegment()
{
    m_viewController->playPreviousSegment();
}

void MainWindowController::mprisOpenFile(const QString& path)
{
    m_viewController->openFileFromPath(path);
}
