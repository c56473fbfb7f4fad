// SPDX-License-Identifier: GPL-3.0-or-later
// The main window offscreen: opening a lesson through the direct road, what a
// failed opening leaves behind, the three areas, the menus and their keys, and the screenshot a person looks at (the other languages'
// are the language tests').

#include "app/AppDelegate.h"
#include "app/MainWindowController.h"
#include "app/RecentDocuments.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "audio/AudioManager.h"
#include "localization/LanguageManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PreferenceKeys.h"
#include "support/TestSupport.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSet>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

// The commands that need a lesson, toolbar items and menu items alike.
const char* const kLessonCommands[] = {
    "playPause",       "repeatMode",          "export",          "import",
    "clear",           "menuImportDictation", "menuExport",      "menuClearDictation",
    "menuPlayPause",   "menuPreviousSegment", "menuNextSegment", "menuRepeatMode",
    "menuFirstSegment", "menuSplitAudio",      "split",           "menuSplitSegment",
    "menuMergeSegments", "menuStartEarlier", "menuPractiseHard"};

QStringList enabledCommands(MainWindowController& window, bool enabled)
{
    QStringList names;
    for (const char* name : kLessonCommands) {
        auto* action = window.findChild<QAction*>(QLatin1String(name));
        if (!action)
            names << QStringLiteral("(missing) ") + QLatin1String(name);
        else if (action->isEnabled() == enabled)
            names << QLatin1String(name);
    }
    return names;
}

} // namespace

TEST(MainWindow, StartsEmptyWithTheLaunchTextAndTheLessonCommandsDisabled)
{
    WindowHarness h;
    EXPECT_EQ(h.window().windowTitle(), "Kelmora");
    EXPECT_EQ(h.session().statusText(), "No audio file opened");
    EXPECT_EQ(h.session().transcriptionTableView()->model()->rowCount(), 0);
    EXPECT_TRUE(h.session().waveformView()->segments().isEmpty());
    ASSERT_NE(h.window().findChild<QAction*>("repeatMode"), nullptr);

    EXPECT_EQ(enabledCommands(h.window(), true), QStringList());
    for (const char* name : {"open", "settings", "importFromMusicLibrary", "menuOpen",
                             "menuImportFromMusic", "menuPreferences", "menuQuit",
                             "menuKelmoraHelp", "menuCheckForUpdates"}) {
        auto* action = h.window().findChild<QAction*>(QLatin1String(name));
        ASSERT_NE(action, nullptr) << name;
        EXPECT_TRUE(action->isEnabled()) << name;
    }
    // Every toolbar command is a menu item too.
    const QList<QPair<const char*, const char*>> twins = {
        {"open", "menuOpen"},         {"playPause", "menuPlayPause"},
        {"repeatMode", "menuRepeatMode"}, {"export", "menuExport"},
        {"settings", "menuPreferences"}, {"import", "menuImportDictation"},
        {"clear", "menuClearDictation"}, {"importFromMusicLibrary", "menuImportFromMusic"},
        {"reference", "menuAttachReference"}, {"check", "menuCheck"},
        {"split", "menuSplitSegment"}};
    auto* toolbar = h.window().findChild<QToolBar*>(QStringLiteral("mainToolbar"));
    ASSERT_NE(toolbar, nullptr);
    ASSERT_EQ(toolbar->actions().size(), twins.size());
    for (const auto& [tool, menuItem] : twins) {
        EXPECT_NE(h.window().findChild<QAction*>(QLatin1String(tool)), nullptr) << tool;
        auto* item = h.window().findChild<QAction*>(QLatin1String(menuItem));
        ASSERT_NE(item, nullptr) << menuItem;
        EXPECT_FALSE(item->associatedObjects().isEmpty()) << menuItem << " is in no menu";
    }
}

TEST(MainWindow, OpensALessonShowsItsSegmentsAndPlaysTheFirst)
{
    WindowHarness h;
    QApplication::setActiveWindow(&h.window());
    bool success = false;
    ASSERT_TRUE(h.open(fixture("speech.mp3"), &success));
    ASSERT_TRUE(success);

    const qsizetype segments = h.engine().numberOfSegments();
    ASSERT_GT(segments, 1);
    TranscriptionTableView* table = h.session().transcriptionTableView();
    EXPECT_EQ(h.window().windowTitle(), "speech");
    EXPECT_EQ(table->model()->rowCount(), segments);
    EXPECT_EQ(h.session().waveformView()->segments().size(), segments);
    EXPECT_EQ(h.session().waveformView()->currentSegmentIndex(), 0);
    EXPECT_EQ(table->currentIndex(), 0);
    EXPECT_TRUE(h.engine().isPlaying());
    EXPECT_EQ(h.engine().currentSegmentIndex(), 0);
    EXPECT_EQ(RecentDocuments(h.defaults()).paths().value(0), fixture("speech.mp3"));

    // The commands that need a lesson are there now.
    EXPECT_EQ(enabledCommands(h.window(), false), QStringList());

    const QString status = h.session().statusText();
    EXPECT_TRUE(status.startsWith(fixture("speech.mp3") + " | MP3: ")) << status.toStdString();
    EXPECT_TRUE(status.contains(QStringLiteral(" | Segments: %1 | Play | ").arg(segments)))
        << status.toStdString();

    // The focus is in row 0's editor, and what is typed lands in row 0.
    ASSERT_TRUE(waitFor([&] { return QApplication::focusWidget() == table->editorForRow(0); }));
    QTest::keyClicks(QApplication::focusWidget(), "Good morning");
    EXPECT_EQ(table->mutableTranscriptions().value(0), "Good morning");

    const QImage shot = h.screenshot(QStringLiteral("main-window"));
    EXPECT_EQ(shot.size() / shot.devicePixelRatio(), QSize(1280, 800));
    // The status bar's grey band runs along the bottom.
    const QPoint inStatusBar(1270, 800 - 12);
    EXPECT_EQ(shot.pixelColor(inStatusBar * shot.devicePixelRatio()).rgb(),
              QColor(199, 203, 209).rgb());
}

struct BadFile
{
    const char* name;
};

class FailedOpening : public ::testing::TestWithParam<BadFile>
{
};

TEST_P(FailedOpening, AlertsAndLeavesTheWindowOnWhatItShowed)
{
    const QString bad = fixture(GetParam().name);
    for (const bool afterAGoodFile : {false, true}) {
        SCOPED_TRACE(afterAGoodFile ? "after a good file" : "first");
        WindowHarness h;
        if (afterAGoodFile) {
            ASSERT_TRUE(h.open(fixture("speech.wav")));
        }
        const QString title = h.window().windowTitle();
        const QString status = h.session().statusText();
        const int rows = h.session().transcriptionTableView()->model()->rowCount();
        AlertAnswerer answerer(QStringLiteral("OK"));
        bool success = true;
        ASSERT_TRUE(h.open(bad, &success));
        EXPECT_FALSE(success);
        ASSERT_EQ(answerer.seen().size(), 1);
        EXPECT_EQ(answerer.seen()[0].title, "Error");
        EXPECT_EQ(answerer.seen()[0].text, "Error");
        EXPECT_EQ(answerer.seen()[0].informativeText, "Failed to process audio file");

        // The window stays on the lesson it showed, or empty, as the engine does.
        EXPECT_EQ(h.window().windowTitle(), afterAGoodFile ? "speech" : "Kelmora");
        EXPECT_EQ(h.window().windowTitle(), title);
        EXPECT_EQ(h.session().statusText(), status);
        if (!afterAGoodFile) {
            EXPECT_EQ(status, "No audio file opened");
        }
        EXPECT_EQ(h.session().transcriptionTableView()->model()->rowCount(), rows);
        EXPECT_EQ(rows, h.engine().numberOfSegments());
        EXPECT_EQ(h.session().waveformView()->segments().size(), h.engine().numberOfSegments());
        EXPECT_EQ(h.session().currentAudioPath(), afterAGoodFile ? fixture("speech.wav") : "");
        EXPECT_EQ(RecentDocuments(h.defaults()).paths(),
                  afterAGoodFile ? QStringList{fixture("speech.wav")} : QStringList{});
        EXPECT_EQ(h.engine().isPlaying(), afterAGoodFile);

        // A good file opens after it as ever.
        ASSERT_TRUE(h.open(fixture("speech.wav"), &success));
        EXPECT_TRUE(success);
        EXPECT_GT(h.session().transcriptionTableView()->model()->rowCount(), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(MainWindow, FailedOpening,
                         ::testing::Values(BadFile{"text.mp3"}, BadFile{"truncated.mp3"},
                                           BadFile{"empty.mp3"}),
                         [](const ::testing::TestParamInfo<BadFile>& file) {
                             return QFileInfo(file.param.name).baseName().toStdString();
                         });

TEST(MainWindow, StatusBarTogglesAtOnceAndTheWaveformStripSlides)
{
    WindowHarness h;
    QWidget* strip = h.session().waveformContainer();
    QStatusBar* status = h.session().statusBar();
    const int stripHeight = strip->height();
    ASSERT_GT(stripHeight, 0);

    h.center().post(Notifications::ShowStatusBarDidChange, false);
    EXPECT_TRUE(status->isHidden());
    EXPECT_EQ(status->maximumHeight(), 0);

    h.center().post(Notifications::ShowAudioWaveDidChange, false);
    EXPECT_TRUE(h.session().waveformView()->isHidden());
    EXPECT_GT(strip->maximumHeight(), 0); // still sliding
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(strip->graphicsEffect());
    ASSERT_NE(effect, nullptr);
    ASSERT_TRUE(waitFor(
        [&] { return strip->maximumHeight() == 0 && effect->opacity() == 0.0; }, 2000));

    h.center().post(Notifications::ShowAudioWaveDidChange, true);
    h.center().post(Notifications::ShowStatusBarDidChange, true);
    EXPECT_FALSE(status->isHidden());
    ASSERT_TRUE(waitFor(
        [&] { return strip->height() == stripHeight && effect->opacity() == 1.0; }, 2000));
}

TEST(MainWindow, SizePresetsKeepTheCentreAndFitTheVisibleArea)
{
    const QRect screen(0, 0, 1920, 1080);
    // Room enough: the centre stays where it was.
    EXPECT_EQ(ViewController::frameKeepingCentre({400, 200, 1000, 600}, {1280, 800}, screen),
              QRect(260, 100, 1280, 800));
    // Larger than the screen: as large as the visible area, and on it.
    EXPECT_EQ(ViewController::frameKeepingCentre({400, 200, 1000, 600}, {2560, 1600}, screen),
              QRect(0, 0, 1920, 1080));
    // Too tall only, below a panel: the width and the horizontal centre stay.
    const QRect belowPanel(0, 32, 1600, 968);
    EXPECT_EQ(ViewController::frameKeepingCentre({300, 100, 1000, 600}, {1280, 1080}, belowPanel),
              QRect(160, 32, 1280, 968));
    // Near the far edge: moved back so that its end meets the visible end.
    EXPECT_EQ(ViewController::frameKeepingCentre({1500, 700, 400, 300}, {1280, 800}, screen),
              QRect(640, 280, 1280, 800));
    // A second screen to the left of the first.
    EXPECT_EQ(ViewController::frameKeepingCentre({-1500, 100, 800, 600}, {2560, 1600},
                                                 QRect(-1600, 0, 1600, 1000)),
              QRect(-1600, 0, 1600, 1000));
    // No screen at all: an empty visible area, and nothing to fit.
    EXPECT_EQ(ViewController::frameKeepingCentre({10, 10, 100, 100}, {200, 200}, QRect()),
              QRect(0, 0, 200, 200));

    // Every preset on the harness's screen: within its available area, the
    // window's frame included.
    WindowHarness h;
    const QRect available = h.window().screen()->availableGeometry();
    const QRect inner = h.window().geometry(), outer = h.window().frameGeometry();
    const QSize room =
        available.size().shrunkBy({inner.left() - outer.left(), inner.top() - outer.top(),
                                   outer.right() - inner.right(), outer.bottom() - inner.bottom()});
    for (const QSize& preset :
         {QSize(1280, 800), QSize(1440, 900), QSize(1920, 1080), QSize(2560, 1600)}) {
        SCOPED_TRACE(preset.width());
        h.session().resizeWindowToWidth(preset.width(), preset.height());
        EXPECT_EQ(h.window().size(), preset.boundedTo(room));
        EXPECT_TRUE(available.contains(h.window().frameGeometry()))
            << available.width() << "x" << available.height();
    }
}

namespace {

QMenu* menu(MainWindowController& window, const char* name)
{
    return window.findChild<QMenu*>(QLatin1String(name));
}

// Closes the open menus. The offscreen platform leaves a closed menu the
// active window, where a desktop gives the main window back its activation.
void closeMenus(QWidget& window)
{
    while (QWidget* popup = QApplication::activePopupWidget())
        QTest::keyClick(popup, Qt::Key_Escape);
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

QStringList itemTexts(QMenu* menu)
{
    QStringList texts;
    for (QAction* action : menu->actions()) {
        if (!action->isSeparator())
            texts << action->text();
    }
    return texts;
}

} // namespace

TEST(MainWindowMenus, F10AndMnemonicsOpenTheMenusAndPlaybackShowsTheKeysBoundNow)
{
    WindowHarness h;
    h.window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&h.window()));
    QStringList titles;
    for (QAction* action : h.window().menuBar()->actions())
        titles << action->text();
    EXPECT_EQ(titles, (QStringList{"&File", "&Edit", "&View", "&Playback", "&Help"}));

    // F10 opens the first menu.
    QTest::keyClick(&h.window(), Qt::Key_F10);
    ASSERT_TRUE(waitFor([&] { return menu(h.window(), "menuFile")->isVisible(); }, 2000));
    EXPECT_EQ(itemTexts(menu(h.window(), "menuFile")),
              (QStringList{"&Open…", "Open &Recent", "&Import Dictation…",
                           "Recover Earlier &Dictation…", "Import from &Music Folder…", "&Attach Reference Text…",
                           "Remo&ve Reference Text", "&Export Dictation…", "&Quit Kelmora"}));
    // The menus print Qt's own keys the way the six are printed.
    EXPECT_EQ(h.window().findChild<QAction*>("menuOpen")->shortcut().toString(
                  QKeySequence::NativeText),
              Keyboard::shortcutText(31, ModifierFlag::Control));
    closeMenus(h.window());

    // Alt+P: the Playback menu, each command with the key bound to it now.
    QTest::keyClick(&h.window(), Qt::Key_P, Qt::AltModifier);
    QMenu* playback = menu(h.window(), "menuPlayback");
    ASSERT_TRUE(waitFor([&] { return playback->isVisible(); }, 2000));
    EXPECT_EQ(itemTexts(playback),
              (QStringList{"&Play/Pause\tReturn", "Pre&vious Segment\tUp", "&Next Segment\tDown",
                           "&Repeat Mode\tCtrl+R", "&First Segment\tCtrl+/",
                           "&Split the Audio Again\tF2", "Chec&k Segment\tCtrl+Return",
                           "Show Next &Word\tCtrl+H"}));
    closeMenus(h.window());
    EXPECT_EQ(itemTexts(menu(h.window(), "menuView")),
              (QStringList{"&Window Size", "Practise &Hard Sentences\tCtrl+Shift+H"}));

    ObjectStorage(h.defaults())
        .setKeyboardShortcut(KeyboardShortcut(45, ModifierFlag::Shift),
                             PreferenceKeys::NextSegmentShortcut);
    ASSERT_TRUE(h.open(fixture("speech.wav")));
    ASSERT_GT(h.engine().numberOfSegments(), 1);
    QTest::keyClick(&h.window(), Qt::Key_P, Qt::AltModifier);
    ASSERT_TRUE(waitFor([&] { return playback->isVisible(); }, 2000));
    EXPECT_EQ(itemTexts(playback).value(2), "&Next Segment\tShift+N");
    // A letter in the open menu runs its command: N, the next segment.
    QTest::keyClick(playback, Qt::Key_N);
    EXPECT_FALSE(playback->isVisible());
    EXPECT_EQ(h.session().currentSegmentIndex(), 1);

    // F10 bound to one of the six runs that command instead.
    closeMenus(h.window());
    ObjectStorage(h.defaults())
        .setKeyboardShortcut(KeyboardShortcut(Keyboard::KeyF10, 0),
                             PreferenceKeys::NextSegmentShortcut);
    QTest::keyClick(&h.window(), Qt::Key_F10);
    EXPECT_EQ(h.session().currentSegmentIndex(), 2);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST(MainWindowMenus, EveryMenuItemHasAMnemonicOfItsOwnInEveryLanguage)
{
    for (const auto& language : LanguageManager::supportedLanguages()) {
        SCOPED_TRACE(language.code);
        WindowHarness h{QString::fromLatin1(language.code)};
        QList<QList<QAction*>> menus{h.window().menuBar()->actions()};
        for (QAction* title : h.window().menuBar()->actions())
            menus << title->menu()->actions();
        for (const QList<QAction*>& items : menus) {
            QSet<int> keys;
            for (QAction* item : items) {
                if (item->isSeparator())
                    continue;
                const QString text = item->text().section(QLatin1Char('\t'), 0, 0);
                const QKeySequence mnemonic = QKeySequence::mnemonic(text);
                EXPECT_FALSE(mnemonic.isEmpty()) << text.toStdString();
                if (mnemonic.isEmpty())
                    continue;
                EXPECT_FALSE(keys.contains(mnemonic[0].toCombined()))
                    << text.toStdString() << " shares its key";
                keys.insert(mnemonic[0].toCombined());
            }
        }
        if (QLatin1String(language.code) != QLatin1String("en")) {
            EXPECT_NE(h.window().menuBar()->actions().value(0)->text(), "&File");
        }
    }
}

TEST(MainWindowMenus, TheHelpAlertNamesTheKeysBoundNowAndInforms)
{
    WindowHarness h;
    EXPECT_EQ(AppDelegate::localizedHelpText(h.defaults()),
              "Quick Help Guide:\n\n1. Open Audio File: Ctrl+O\n2. Play/Pause: Return\n"
              "3. Next Segment: Down\n4. Previous Segment: Up\n5. Repeat Mode: Ctrl+R\n"
              "6. First Segment: Ctrl+/\n7. Split the Audio Again: F2\n"
              "8. Export Dictation: Ctrl+S\n\nIf you have any questions, email me: "
              "support@kelmora.app.");
    if (!AppDelegate::helpPagePath().isEmpty())
        GTEST_SKIP() << "a help page is installed here; the alert is its fall-back";

    ObjectStorage(h.defaults())
        .setKeyboardShortcut(KeyboardShortcut(49, ModifierFlag::Control | ModifierFlag::Shift),
                             PreferenceKeys::PlayPauseShortcut);
    AppDelegate delegate(h.services());
    AlertAnswerer answerer(LocalizedString(Texts::OK));
    delegate.showHelp();
    ASSERT_EQ(answerer.seen().size(), 1);
    EXPECT_EQ(answerer.seen()[0].title, "Help");
    EXPECT_EQ(answerer.seen()[0].icon, QMessageBox::Information);
    EXPECT_TRUE(answerer.seen()[0].informativeText.contains("2. Play/Pause: Ctrl+Shift+Space\n"))
        << answerer.seen()[0].informativeText.toStdString();
    EXPECT_EQ(answerer.seen()[0].buttons, QStringList{"OK"});
}
