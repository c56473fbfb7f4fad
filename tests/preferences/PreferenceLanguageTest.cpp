// SPDX-License-Identifier: GPL-3.0-or-later
// Choosing a language: the restart prompt, "Later" and "Restart Now" through
// the application delegate, and how both windows look in four languages.

#include "app/AppDelegate.h"
#include "app/AutoSaveQueue.h"
#include "app/FileIdentity.h"
#include "app/MainWindowController.h"
#include "app/ViewController.h"
#include "app/WindowHarness.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/ColorWell.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceFixture.h"
#include "preferences/PreferenceKeys.h"
#include "transcript/DocumentManager.h"
#include "transcript/TranscriptionManager.h"
#include "views/TranscriptionTableView.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using TestSupport::fixture;

namespace {

// The application delegate over services of its own; it never starts a process.
struct DelegateFixture
{
    TestSupport::TempDefaults defaults;
    QTemporaryDir documentsDir;
    NotificationCenter center;
    DocumentManager documents{documentsDir.path()};
    std::unique_ptr<AudioManager> engine;
    std::unique_ptr<TranscriptionManager> transcriptions;
    AutoSaveQueue autoSave{[] { return 1000.0; }};
    LanguageBundle bundle{defaults.store()};
    LanguageManager language{defaults.store(), center, bundle};
    std::unique_ptr<AppDelegate> delegate;
    QList<QStringList> started; // program, then its arguments

    DelegateFixture()
    {
        regDefaultPreference(defaults.store());
        engine = std::make_unique<AudioManager>(defaults.store(), center);
        engine->setOutputFactory(
            [] { return std::make_unique<NullAudioOutput>(NullAudioOutput::Clocking::RealTime); });
        transcriptions = std::make_unique<TranscriptionManager>(
            [e = engine.get()] { return e->getTotalDuration(); });
        delegate = std::make_unique<AppDelegate>(SessionServices{
            *engine, center, defaults.store(), *transcriptions, documents, autoSave});
        language.setSystemLanguages({QStringLiteral("en-US")});
        delegate->setLanguageManager(language);
        delegate->setProcessStarter([this](const QString& program, const QStringList& arguments) {
            started << (QStringList{program} + arguments);
            return true;
        });
        delegate->applicationDidFinishLaunching();
    }
    ~DelegateFixture()
    {
        delegate.reset();
        autoSave.waitForDone();
        QApplication::processEvents();
    }
    PreferenceViewController* preferences() { return delegate->preferenceWindowController(); }
    void chooseNextLanguage()
    {
        auto* languages =
            preferences()->findChild<QComboBox*>(QStringLiteral("languagePopUpButton"));
        languages->setFocus();
        QTest::keyClick(languages, Qt::Key_Down);
    }
};

} // namespace

TEST(LanguageSwitching, LaterKeepsRunningAndRestartNowStartsAgainOnceTheWindowHasClosed)
{
    DelegateFixture f;
    MainWindowController* main = f.delegate->mainWindowController();
    ASSERT_NE(main, nullptr);
    f.delegate->showPreferences();
    PreferenceViewController* window = f.preferences();
    ASSERT_NE(window, nullptr);
    f.delegate->showPreferences();
    EXPECT_EQ(f.preferences(), window); // made once, then reused
    EXPECT_TRUE(window->isVisible());

    {
        AlertAnswerer answerer(LocalizedString(Texts::Later));
        f.chooseNextLanguage(); // zh-Hans
        ASSERT_TRUE(answerer.waitForAlerts(1));
        EXPECT_EQ(answerer.seen()[0].text, LocalizedString(Texts::RestartTitle));
        EXPECT_EQ(answerer.seen()[0].informativeText,
                  "Please restart the app to apply the new language.");
        EXPECT_EQ(answerer.seen()[0].buttons,
                  (QStringList{LocalizedString(Texts::RestartNow), LocalizedString(Texts::Later)}));
    }
    EXPECT_EQ(f.language.currentLanguage(), "zh-Hans");
    EXPECT_EQ(f.defaults.store().objectForKey(PreferenceKeys::AppleLanguages).toStringList(),
              QStringList{"zh-Hans"});
    EXPECT_TRUE(f.started.isEmpty());
    EXPECT_TRUE(main->isVisible());

    AlertAnswerer answerer(LocalizedString(Texts::RestartNow));
    f.chooseNextLanguage(); // es
    ASSERT_TRUE(answerer.waitForAlerts(1));
    ASSERT_TRUE(waitFor([&] { return !f.started.isEmpty(); }));
    EXPECT_EQ(f.language.currentLanguage(), "es");
    // No lesson was open: nothing from the first command line comes back.
    EXPECT_EQ(f.started, QList<QStringList>{QStringList{QCoreApplication::applicationFilePath()}});
    EXPECT_FALSE(main->isVisible());
    EXPECT_FALSE(window->isVisible());
}

TEST(LanguageSwitching, WithNothingChosenTheListShowsTheDesktopsLanguageAndEnglishCanBeChosen)
{
    // A German desktop; the learner never chose a language.
    PreferenceFixture f({}, {QStringLiteral("de-DE"), QStringLiteral("en-US")});
    auto* languages = f.control<QComboBox>("languagePopUpButton");
    EXPECT_EQ(languages->currentData().toString(), "de");
    auto choose = [&](const char* code) {
        languages->setCurrentIndex(languages->findData(QString::fromLatin1(code)));
        emit languages->activated(languages->currentIndex());
    };
    {
        // What the window already shows asks for nothing and stores nothing.
        AlertAnswerer answerer(LocalizedString(Texts::Later));
        choose("de");
        TestSupport::processEvents();
        EXPECT_TRUE(answerer.seen().isEmpty());
        EXPECT_TRUE(f.posted.isEmpty());
        EXPECT_TRUE(f.defaults.store().stringForKey(PreferenceKeys::AppLanguage).isEmpty());
    }
    AlertAnswerer answerer(LocalizedString(Texts::Later));
    choose("en");
    ASSERT_TRUE(answerer.waitForAlerts(1));
    EXPECT_EQ(answerer.seen()[0].informativeText,
              "Please restart the app to apply the new language.");
    EXPECT_EQ(f.defaults.store().stringForKey(PreferenceKeys::AppLanguage), "en");
    EXPECT_EQ(f.posted, QStringList{"LanguageDidChangeNotification"});
    EXPECT_EQ(f.language->startupLanguage(), "en"); // the next start is in English
    EXPECT_EQ(languages->currentData().toString(), "en");
}

TEST(LanguageSwitching, ACancelledSavePromptCancelsTheRestart)
{
    DelegateFixture f;
    MainWindowController* main = f.delegate->mainWindowController();
    ASSERT_NE(main, nullptr);
    f.delegate->applicationOpenFile(fixture("speech.wav"));
    ASSERT_TRUE(waitFor([&] { return main->viewController()->hasSegmentsShown(); }, 60000));
    {
        AlertAnswerer answerer(LocalizedString(Texts::Cancel));
        f.delegate->restartApp();
        ASSERT_TRUE(answerer.waitForAlerts(1));
        EXPECT_EQ(answerer.seen()[0].text, "Save Dictation?");
    }
    TestSupport::processEvents();
    EXPECT_TRUE(main->isVisible());
    // A later ordinary close does not restart either.
    AlertAnswerer answerer(LocalizedString(Texts::DontSave));
    main->close();
    ASSERT_TRUE(waitFor([&] { return !main->isVisible(); }));
    EXPECT_TRUE(f.started.isEmpty());
}

TEST(LanguageSwitching, RestartNowStartsAFreshInstanceWithTheTypingOfTheLastMomentSaved)
{
    DelegateFixture f;
    MainWindowController* main = f.delegate->mainWindowController();
    ASSERT_NE(main, nullptr);
    ViewController* session = main->viewController();
    const QString lesson = fixture("speech.wav");
    f.delegate->applicationOpenFile(lesson);
    ASSERT_TRUE(waitFor([&] { return session->hasSegmentsShown(); }, 60000));
    // A save has just run, so the throttle would hold the next one back.
    session->autoSaveTranscription();
    f.autoSave.waitForDone();
    ASSERT_TRUE(f.autoSave.isThrottled());
    session->transcriptionTableView()->updateTranscription(QStringLiteral("Guten Tag"), 0);

    AlertAnswerer answerer(LocalizedString(Texts::DontSave));
    f.delegate->restartApp();
    ASSERT_TRUE(waitFor([&] { return !f.started.isEmpty(); }));
    // No command line comes back; the typing waits in the store for the
    // lesson's next opening.
    const QList<QStringList> expected{{QCoreApplication::applicationFilePath()}};
    EXPECT_EQ(f.started, expected);
    const QString store = FileIdentity::transcriptionPathForIdentifier(
        FileIdentity::uniqueIdentifierForFileAtPath(lesson).value_or(QString()), f.documents);
    EXPECT_TRUE(TestSupport::readFile(store).contains("]Guten Tag"));
}

namespace {

// A label or button whose text does not fit is cut off on screen.
QStringList clippedTexts(QWidget* page)
{
    QStringList clipped;
    for (QWidget* w : page->findChildren<QWidget*>()) {
        if (!w->isVisible())
            continue;
        if (auto* label = qobject_cast<QLabel*>(w)) {
            const bool fits = label->wordWrap()
                                  ? label->height() >= label->heightForWidth(label->width())
                                  : label->width() >= label->sizeHint().width();
            if (!fits)
                clipped << label->text();
        } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            if (button->width() < button->sizeHint().width())
                clipped << button->text();
        } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
            if (combo->width() < combo->sizeHint().width())
                clipped << combo->currentText();
        }
    }
    return clipped;
}

} // namespace

TEST(LanguageSwitching, BothWindowsInFourLanguagesShowEveryTextWhole)
{
    const char* const tabs[] = {"", "-appearance", "-shortcuts"};
    for (const char* language : {"en", "ja", "ru", "th"}) {
        SCOPED_TRACE(language);
        WindowHarness h{QString::fromLatin1(language)};
        ASSERT_TRUE(h.open(fixture("speech.mp3")));
        h.screenshot(QStringLiteral("main-window-") + language);
        // The main window speaks the language: its toolbar and status bar.
        auto* open = h.window().findChild<QAction*>(QStringLiteral("open"));
        ASSERT_NE(open, nullptr);
        EXPECT_EQ(open->text(), LocalizedString(Texts::ToolbarOpen));
        EXPECT_TRUE(h.session().statusText().contains(LocalizedString(Texts::Segments)));

        LanguageBundle bundle(h.defaults());
        LanguageManager manager(h.defaults(), h.center(), bundle);
        PreferenceViewController window(h.engine(), h.defaults(), h.center(), manager);
        window.show();
        QApplication::processEvents();
        EXPECT_EQ(window.windowTitle(), LocalizedString(Texts::Preferences));
        if (QLatin1String(language) != QLatin1String("en")) {
            EXPECT_NE(window.windowTitle(), "Preferences");
            EXPECT_NE(open->text(), "Open");
        }
        // The list names each language in its own words, then in the
        // interface's; the interface's own language once.
        auto* languages = window.findChild<QComboBox*>(QStringLiteral("languagePopUpButton"));
        const int own = languages->findData(QString::fromLatin1(language));
        EXPECT_EQ(languages->currentIndex(), own);
        EXPECT_EQ(languages->itemText(own), manager.nativeLanguageName(language));
        EXPECT_EQ(languages->itemText(0),
                  own == 0 ? QStringLiteral("English")
                           : QStringLiteral("English — ") + LocalizedString(Texts::English));
        if (QLatin1String(language) == QLatin1String("ru")) {
            EXPECT_EQ(languages->itemText(own), QString::fromUtf8("Русский"));
        }

        auto* tabWidget = window.findChild<QTabWidget*>();
        // All three tabs fit side by side: no scroll arrows.
        EXPECT_LE(tabWidget->tabBar()->sizeHint().width(), tabWidget->width());
        for (int i = 0; i < 3; ++i) {
            tabWidget->setCurrentIndex(i);
            QApplication::processEvents();
            EXPECT_EQ(clippedTexts(&window).join(" | ").toStdString(), "") << "tab " << i;
            // Every spin box, and the typo weight, sits on its label's line,
            // right of it.
            for (QLabel* label : tabWidget->currentWidget()->findChildren<QLabel*>()) {
                const QWidget* control = label->buddy();
                if (!qobject_cast<const QAbstractSpinBox*>(control) &&
                    !(control && control->objectName() == "typoWeightPopUp"))
                    continue;
                const QRect l(label->mapTo(&window, QPoint()), label->size());
                const QRect c(control->mapTo(&window, QPoint()), control->size());
                EXPECT_TRUE(c.top() < l.bottom() && l.top() < c.bottom() && c.left() > l.right())
                    << label->text().toStdString() << " at " << l.top() << ".." << l.bottom()
                    << ", its control at " << c.top() << ".." << c.bottom();
            }
            const QImage shot = window.grab().toImage();
            QDir().mkpath(QStringLiteral(KELMORA_SCREENSHOT_DIR));
            shot.save(QStringLiteral(KELMORA_SCREENSHOT_DIR "/preferences-%1%2.png")
                          .arg(QLatin1String(language), QLatin1String(tabs[i])));
            if (i == 0 && QLatin1String(language) == QLatin1String("ru"))
                shot.save(QStringLiteral(KELMORA_SCREENSHOT_DIR "/russian-general-tab.png"));
            if (i == 1) {
                // The background well shows the table's default colour.
                auto* well = window.findChild<ColorWell*>(QStringLiteral("tableBackgroundColorWell"));
                const QPoint centre = well->mapTo(&window, well->rect().center());
                EXPECT_EQ(shot.pixelColor(centre * shot.devicePixelRatio()), QColor(18, 63, 124));
            }
        }
    }
}
