// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/SessionServices.h"
#include "desktop/MprisWindow.h"

#include <QMainWindow>
#include <QPointer>

class AudioManager;
class Defaults;
class NotificationCenter;
class QAction;
class QMenu;
class ViewController;

// The main window: toolbar, menu bar and the close prompt. Its commands only
// forward to the session (ViewController) or, for application-wide commands,
// to whoever listens to its signals (the application delegate). Every toolbar
// command is also a menu item, every menu has its mnemonics, F10 opens the
// menu bar, and the commands that need a lesson are disabled without one.
class MainWindowController : public QMainWindow, public MprisWindow
{
    Q_OBJECT
public:
    explicit MainWindowController(const SessionServices& services, QWidget* parent = nullptr);
    ~MainWindowController() override;

    ViewController* viewController() const { return m_viewController; }

    // The toolbar items the window updates, named as they always were although
    // they are actions.
    QAction* openButton() const { return m_openButton; }
    QAction* playPauseButton() const { return m_playPauseButton; }
    QAction* repeatButton() const { return m_repeatButton; }

    // Stops playback and closes the audio file; harmless when called twice.
    void cleanupAndClose();

    // Rebuilds the Open Recent menu from the stored list.
    void rebuildRecentMenu();

    // F10: the menu bar's first menu opens, as on GNOME and KDE.
    void openMenuBar();
    // The Playback menu's items show the keys bound now.
    void updatePlaybackMenu();

    // A panel starting in the user's music folder; the chosen file goes the
    // direct road once it opens as audio ("Error Opening File" otherwise).
    void toolbarItemImportFromMusicLibrary();
    void handleSelectedMusicFile(const QString& path);

    // What the desktop's media keys reach.
    QWidget* mprisWidget() override { return this; }
    QString mprisAudioPath() const override;
    void mprisTogglePlayPause() override;
    void mprisNextSegment() override;
    void mprisPreviousSegment() override;
    void mprisOpenFile(const QString& path) override;

signals:
    void preferencesRequested();
    void checkForUpdatesRequested();
    void helpRequested();
    void sizePresetRequested(int width, int height);
    // The window really closes (after the save prompt, if there was one).
    void windowClosed();
    // The save prompt was cancelled, or its save did not happen: the window stays.
    void closeCancelled();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void setupToolbar();
    void setupMenus();
    void setupPlaybackMenu();
    // Undo, Redo and the cutting's edits (MainWindowController+Edit.cpp).
    void setupEditMenu(QMenu* edit);
    // Their texts: the command an undo would take back, the keys bound now.
    void updateEditMenu();
    // Practise Hard Sentences with the keys bound now.
    void updateViewMenu();
    // Enabled only while a lesson is in the window.
    void needsLesson(QAction* command);
    // The commands that need a reference text follow whether there is one.
    void referenceTextChanged(bool attached);
    void lessonShownChanged(bool shown);
    void playStatusDidChange();
    void toolbarItemRepeat();
    void closeAfterSave();
    void closePromptAnswered(bool save, bool dontSave);

    AudioManager& m_engine;
    NotificationCenter& m_center;
    Defaults& m_defaults;
    ViewController* m_viewController;
    QPointer<QAction> m_openButton;
    QPointer<QAction> m_playPauseButton;
    QPointer<QAction> m_repeatButton;
    QMenu* m_recentMenu = nullptr;
    QMenu* m_playbackMenu = nullptr;
    QAction* m_undoItem = nullptr;
    QAction* m_redoItem = nullptr;
    QAction* m_splitItem = nullptr;
    QAction* m_mergeItem = nullptr;
    QAction* m_cutAtSentencesItem = nullptr;
    QAction* m_alignAgainItem = nullptr;
    QAction* m_hardSentencesItem = nullptr;
    QList<QAction*> m_lessonCommands;
    QList<QAction*> m_referenceCommands;
    QPointer<QAction> m_checkButton;
    bool m_closeConfirmed = false;
};
