// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences window offscreen: each control writes its setting at once
// and tells the application; the repeat field's typed input; reset and its
// order; a recording field when the window closes.

#include "app/WindowHarness.h"
#include "preferences/CheckPreferences.h"
#include "preferences/ColorWell.h"
#include "preferences/Defaults.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PracticePreferences.h"
#include "preferences/PreferenceKeys.h"
#include "preferences/PreferenceFixture.h"
#include "preferences/RepeatTimesSpinBox.h"
#include "preferences/ShortcutBindings.h"
#include "preferences/ShortcutTextField.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QLocale>
#include <QPushButton>
#include <QTabWidget>
#include <gtest/gtest.h>

using namespace PreferenceKeys;

namespace {
template <typename Dialog>
Dialog* openDialog(QWidget* window, const char* name)
{
    Dialog* dialog = nullptr;
    waitFor([&] { return (dialog = window->findChild<Dialog*>(QLatin1String(name))) != nullptr; });
    return dialog;
}
} // namespace

TEST(PreferenceWindow, ShowsTheStoredSettingsAndDumpsThem)
{
    TestSupport::LogCapture log;
    PreferenceFixture f([](Defaults& d) {
        d.setDouble(2.5, MinSegmentDuration);
        d.setDouble(0.2, PlaySpeed); // out of the engine's range: 1.0
        d.setInteger(12000, MaxRepeatPlayTimes); // over the engine's bound: 20
        d.setBool(false, ShowAudioWave);
        // As the settings file hands them back after a restart: text.
        d.setObject(QStringLiteral("true"), CountPunctuation);
        d.setObject(QStringLiteral("0"), TypoWeight);
        d.setObject(QStringLiteral("true"), CheckAsIType);
    });
    EXPECT_EQ(f.window->size(), QSize(400, 500));
    EXPECT_EQ(f.window->windowTitle(), "Preferences");
    EXPECT_DOUBLE_EQ(f.control<QDoubleSpinBox>("minSegmentDurationStepper")->value(), 2.5);
    EXPECT_EQ(f.control<QDoubleSpinBox>("minSegmentDurationStepper")->text(), "2.50");
    EXPECT_EQ(f.control<QDoubleSpinBox>("playSpeedStepper")->text(), QString::fromUtf8("1.0×"));
    EXPECT_EQ(f.control<QSpinBox>("repeatPlayTimesStepper")->text(), "20");
    EXPECT_FALSE(f.control<QCheckBox>("showAudioWaveSwitch")->isChecked());
    EXPECT_TRUE(f.control<QCheckBox>("showStatusBarSwitch")->isChecked());
    EXPECT_EQ(f.control<QPushButton>("fontDisplayLabel")->text(), "Menlo - 20.0");
    EXPECT_EQ(f.control<ShortcutTextField>("repeatplay")->text(), "Ctrl+R");
    EXPECT_EQ(f.control<ShortcutTextField>("splitaudio")->text(), "F2");
    EXPECT_EQ(f.control<ShortcutTextField>("check")->text(), "Ctrl+Return");
    EXPECT_EQ(f.control<ShortcutTextField>("shownextword")->text(), "Ctrl+H");
    EXPECT_TRUE(f.control<QCheckBox>("countPunctuationSwitch")->isChecked());
    EXPECT_EQ(f.control<QComboBox>("typoWeightPopUp")->currentText(), "0");
    EXPECT_FALSE(f.control<QCheckBox>("countCaseSwitch")->isChecked());
    EXPECT_TRUE(f.control<QCheckBox>("checkAsITypeSwitch")->isChecked());
    EXPECT_EQ(f.control<QGroupBox>("checkingGroup")->title(), "Checking");

    // Every control has a name for a screen reader, and every tab's controls
    // fit the window at its opening size: none is pushed off the page. A page
    // that scrolls does so downwards only, never across.
    auto* tabs = f.window->findChild<QTabWidget*>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QWidget* page = tabs->currentWidget();
        if (auto* scroll = qobject_cast<QScrollArea*>(page)) {
            page = scroll->widget();
            EXPECT_LE(page->width(), scroll->viewport()->width());
        }
        const QList<QWidget*> controls = page->findChildren<QWidget*>();
        for (QWidget* control : controls) {
            if (qobject_cast<QLabel*>(control) || qobject_cast<QGroupBox*>(control) ||
                !control->isVisibleTo(page) || control->parentWidget()->inherits("QAbstractSpinBox"))
                continue;
            SCOPED_TRACE(control->objectName().toStdString());
            const QString name = control->accessibleName().isEmpty()
                                     ? control->property("text").toString()
                                     : control->accessibleName();
            EXPECT_FALSE(name.isEmpty());
            EXPECT_TRUE(page->rect().contains(QRect(control->mapTo(page, QPoint()), control->size())));
        }
    }
    EXPECT_EQ(f.control<QComboBox>("typoWeightPopUp")->accessibleName(), "Typo weight:");
    EXPECT_EQ(f.control<ShortcutTextField>("shownextword")->accessibleName(), "Show next word");

    // The language pop-up in its table's order, each name in its own language,
    // then in the interface's (once where the two are the same).
    QComboBox* languages = f.control<QComboBox>("languagePopUpButton");
    ASSERT_EQ(languages->count(), 10);
    EXPECT_EQ(languages->itemData(1).toString(), "zh-Hans");
    EXPECT_EQ(languages->itemText(0), "English");
    EXPECT_EQ(languages->itemText(1), QString::fromUtf8("简体中文 — Chinese(Simplified)"));
    EXPECT_EQ(languages->itemText(7), QString::fromUtf8("Русский — Russian"));
    EXPECT_EQ(languages->itemText(9), QString::fromUtf8("Tiếng Việt — Vietnamese"));
    EXPECT_EQ(languages->currentData().toString(), "en");

    const QStringList& lines = log.lines();
    const auto start = lines.indexOf(
        "========Preference===================================================");
    ASSERT_GE(start, 0);
    EXPECT_EQ(lines.value(start + 1), "minSegmentDuration=2.500000");
    EXPECT_EQ(lines.value(start + 5), "tableBackgroundColor=#ff123f7c,value=#123F7C");
    EXPECT_EQ(lines.value(start + 9), "dictionfont=Menlo - 20.0");
    // One line for each shortcut, in the order a key press is matched.
    for (std::size_t i = 0; i < ShortcutCount; ++i)
        EXPECT_TRUE(lines.value(start + 10 + int(i))
                        .startsWith(QLatin1String(shortcutBindings()[i].fieldIdentifier) + " key,"))
            << i;
    EXPECT_EQ(lines.value(start + 10), "previous key,Up,keycode=126,modifierflags=0");
    EXPECT_EQ(lines.value(start + 16), "check key,Return,keycode=36,modifierflags=262144");
    EXPECT_EQ(lines.value(start + 18), "splitsegment key,B,keycode=11,modifierflags=262144");
    EXPECT_EQ(lines.value(start + 19), "mergesegments key,J,keycode=38,modifierflags=262144");
    EXPECT_EQ(lines.value(start + 20), "practisehard key,H,keycode=4,modifierflags=393216");
    EXPECT_EQ(lines.mid(start + 21, 5),
              (QStringList{"countPunctuation=1", "typoWeight=0.000000", "countCase=0",
                           "checkAsIType=1",
                           "====================================================================="}));
}

TEST(PreferenceWindow, EachControlWritesItsSettingAndTellsTheApplication)
{
    PreferenceFixture f;
    Defaults& d = f.defaults.store();

    auto* duration = f.control<QDoubleSpinBox>("minSegmentDurationStepper");
    duration->stepUp();
    EXPECT_DOUBLE_EQ(d.doubleForKey(MinSegmentDuration), 1.1);
    EXPECT_DOUBLE_EQ(f.engine->minSegmentDuration(), 1.1);
    EXPECT_DOUBLE_EQ(d.doubleForKey(Sensitivity), 1.0);

    auto* speed = f.control<QDoubleSpinBox>("playSpeedStepper");
    speed->setValue(2.9);
    speed->stepUp();
    speed->stepUp(); // stops at 3.0
    EXPECT_DOUBLE_EQ(d.doubleForKey(PlaySpeed), 3.0);
    EXPECT_FLOAT_EQ(f.engine->currentRate(), 3.0f);

    auto* repeat = f.control<QSpinBox>("repeatPlayTimesStepper");
    repeat->setValue(12000);
    EXPECT_EQ(d.integerForKey(MaxRepeatPlayTimes), 12000);
    EXPECT_FLOAT_EQ(f.engine->maxRepeatPlayTimes(), 12000.0f);

    f.window->findChild<QTabWidget*>()->setCurrentIndex(1);
    for (const char* name : {"showLineNumbersSwitch", "showAudioWaveSwitch", "showStatusBarSwitch"}) {
        auto* box = f.control<QCheckBox>(name);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2)); // the box itself
    }
    EXPECT_FALSE(d.boolForKey(ShowLineNumbers));
    EXPECT_FALSE(d.boolForKey(ShowAudioWave));
    EXPECT_FALSE(d.boolForKey(ShowStatusBar));
    ASSERT_EQ(f.posted, (QStringList{"ShowLineNumbersDidChange", "ShowAudioWaveDidChange",
                                     "ShowStatusBarDidChange"}));
    EXPECT_EQ(f.objects[0], QVariant(false));

    auto* well = f.control<ColorWell>("tableBackgroundColorWell");
    QTest::mouseClick(well, Qt::LeftButton);
    auto* colors = openDialog<QColorDialog>(f.window.get(), "colorDialog");
    ASSERT_NE(colors, nullptr);
    colors->setCurrentColor(QColor(10, 200, 30));
    colors->accept();
    EXPECT_EQ(ObjectStorage(d).colorForKey(TableBackgroundColor), QColor(10, 200, 30));
    EXPECT_EQ(f.posted.last(), "TableBackgroundColorDidChange");
    EXPECT_EQ(f.objects.last().value<QColor>(), QColor(10, 200, 30));
    // The well shows the colour it holds.
    const QImage drawn = well->grab().toImage();
    EXPECT_EQ(drawn.pixelColor(QPoint(well->width() / 2, well->height() / 2) * drawn.devicePixelRatio()),
              QColor(10, 200, 30));

    // A cancelled colour dialog changes nothing.
    f.control<ColorWell>("dictationTextColorWell")->activate();
    colors = openDialog<QColorDialog>(f.window.get(), "colorDialog");
    ASSERT_NE(colors, nullptr);
    colors->setCurrentColor(Qt::red);
    colors->reject();
    EXPECT_EQ(f.posted.last(), "TableBackgroundColorDidChange");
    EXPECT_EQ(ObjectStorage(d).colorForKey(DictationTextColor), QColor(228, 223, 78));

    // The font panel opens on the font in use: the family the stored "Menlo"
    // stands for, not the first of its list.
    QTest::mouseClick(f.control<QPushButton>("fontDisplayLabel"), Qt::LeftButton);
    auto* fonts = openDialog<QFontDialog>(f.window.get(), "fontDialog");
    ASSERT_NE(fonts, nullptr);
    EXPECT_EQ(fonts->currentFont().family().toStdString(),
              QFontInfo(QFont(QStringLiteral("Menlo"))).family().toStdString());
    EXPECT_DOUBLE_EQ(fonts->currentFont().pointSizeF(), 20.0);
    QFont chosen(QStringLiteral("DejaVu Sans"));
    chosen.setPointSizeF(14.0);
    fonts->setCurrentFont(chosen);
    fonts->accept();
    const std::optional<QFont> stored = ObjectStorage(d).fontForKey(DictationTextFont);
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->family(), "DejaVu Sans");
    EXPECT_DOUBLE_EQ(stored->pointSizeF(), 14.0);
    EXPECT_EQ(f.control<QPushButton>("fontDisplayLabel")->text(), "DejaVu Sans - 14.0");
    EXPECT_EQ(f.posted.last(), "DictationTextFontDidChange");
    ASSERT_TRUE(waitFor([&] { return !f.window->findChild<QFontDialog*>("fontDialog"); }));
    f.window->showFontPanel();
    fonts = openDialog<QFontDialog>(f.window.get(), "fontDialog");
    ASSERT_NE(fonts, nullptr);
    EXPECT_EQ(fonts->currentFont().family(), "DejaVu Sans");
    EXPECT_DOUBLE_EQ(fonts->currentFont().pointSizeF(), 14.0);
    fonts->reject();

    // The check's settings, each stored and told by its key.
    f.window->findChild<QTabWidget*>()->setCurrentIndex(0);
    f.posted.clear();
    f.objects.clear();
    for (const char* name : {"countPunctuationSwitch", "countCaseSwitch", "checkAsITypeSwitch"}) {
        auto* box = f.control<QCheckBox>(name);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
    auto* weight = f.control<QComboBox>("typoWeightPopUp");
    weight->setFocus();
    QTest::keyClick(weight, Qt::Key_Down);
    EXPECT_EQ(weight->currentText(), "1");
    EXPECT_TRUE(d.boolForKey(CountPunctuation));
    EXPECT_TRUE(d.boolForKey(CountCase));
    EXPECT_TRUE(d.boolForKey(CheckAsIType));
    EXPECT_DOUBLE_EQ(d.doubleForKey(TypoWeight), 1.0);
    EXPECT_EQ(f.posted, QStringList(4, "CheckOptionsDidChange"));
    EXPECT_EQ(f.objects, (QVariantList{QString(CountPunctuation), QString(CountCase),
                                       QString(CheckAsIType), QString(TypoWeight)}));
    const CheckOptions read = storedCheckOptions(d);
    EXPECT_TRUE(read.countPunctuation && read.countCase && storedCheckAsIType(d));
    EXPECT_DOUBLE_EQ(read.typoWeight, 1.0);

    // The practice settings: a gap typed between steps is the nearest step.
    f.posted.clear();
    f.objects.clear();
    f.control<QDoubleSpinBox>("repeatGapStepper")->setValue(1.8);
    EXPECT_EQ(f.control<QDoubleSpinBox>("repeatGapStepper")->value(), 2.0);
    f.control<QCheckBox>("slowerFirstSwitch")->setChecked(true);
    f.control<QDoubleSpinBox>("rewindOnResumeStepper")->setValue(1.5);
    f.control<QCheckBox>("holdToPlaySwitch")->setChecked(true);
    f.control<QSpinBox>("hardThresholdStepper")->setValue(60);
    EXPECT_EQ(f.posted, QStringList(5, "PracticeOptionsDidChange"));
    EXPECT_EQ(f.objects, (QVariantList{QString(RepeatGap), QString(SlowerFirst),
                                       QString(RewindOnResume), QString(HoldToPlay),
                                       QString(HardSentenceThreshold)}));
    const PracticeOptions practice = storedPracticeOptions(d);
    EXPECT_DOUBLE_EQ(practice.repeatGap, 2.0);
    EXPECT_TRUE(practice.slowerFirst && practice.holdToPlay);
    EXPECT_DOUBLE_EQ(practice.rewindOnResume, 1.5);
    EXPECT_DOUBLE_EQ(practice.hardThreshold, 0.6);
}

TEST(PreferenceWindow, CheckSettingsTheStoreCannotReadShowTheirDefaultsAndAWeightTheNearest)
{
    struct Case
    {
        QVariant weight, onOff; // stored under kTypoWeight, and under the three switches
        QString shown;          // the typo weight shown
        bool on;                // the three switches shown
    };
    const Case cases[] = {
        {QStringLiteral("heavy"), QStringLiteral("maybe"), "0.5", false},
        {QVariantList{1, 2}, QVariantList{true}, "0.5", false},
        {QStringLiteral("nan"), QStringLiteral("yes"), "0.5", true},
        {0.8, 2, "1", true},
        {QStringLiteral(" 0.3 "), QStringLiteral("1"), "0.5", true},
        {-4, 0.0, "0", false},
        {1e300, QStringLiteral("false"), "1", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.weight.toString().toStdString() + " / " + c.onOff.toString().toStdString());
        PreferenceFixture f([&c](Defaults& d) {
            d.setObject(c.weight, TypoWeight);
            for (const char* key : {CountPunctuation, CountCase, CheckAsIType})
                d.setObject(c.onOff, key);
        });
        EXPECT_EQ(f.control<QComboBox>("typoWeightPopUp")->currentText(), c.shown);
        for (const char* name : {"countPunctuationSwitch", "countCaseSwitch", "checkAsITypeSwitch"})
            EXPECT_EQ(f.control<QCheckBox>(name)->isChecked(), c.on) << name;
        // The check reads what the window shows; showing it stores nothing.
        const CheckOptions read = storedCheckOptions(f.defaults.store());
        EXPECT_EQ(QLocale().toString(read.typoWeight), c.shown);
        EXPECT_EQ(read.countCase, c.on);
        EXPECT_EQ(storedCheckAsIType(f.defaults.store()), c.on);
        EXPECT_EQ(f.defaults.store().objectForKey(TypoWeight), c.weight);
        EXPECT_TRUE(f.posted.isEmpty());
    }

    // The weights are written the interface's way.
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    {
        PreferenceFixture f;
        auto* weight = f.control<QComboBox>("typoWeightPopUp");
        EXPECT_EQ(weight->currentText(), "0,5");
        EXPECT_EQ(weight->itemText(0), "0");
        EXPECT_EQ(weight->itemText(2), "1");
    }
    QLocale::setDefault(before);
}

TEST(PreferenceWindow, TypedRepeatCountStopsAtFiveDigitsAndAnEmptyFieldBecomesTheMinimum)
{
    PreferenceFixture f;
    auto* repeat = f.control<RepeatTimesSpinBox>("repeatPlayTimesStepper");
    QLineEdit* edit = repeat->findChild<QLineEdit*>();
    repeat->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, "123456");
    EXPECT_EQ(edit->text(), "12345");
    EXPECT_EQ(repeat->lastInputError(), "Input must not exceed 6 digits");
    QTest::keyClicks(edit, "x");
    EXPECT_EQ(edit->text(), "12345");
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(f.defaults.store().integerForKey(MaxRepeatPlayTimes), 12345);

    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), "");
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(repeat->value(), 1);
    EXPECT_EQ(f.defaults.store().integerForKey(MaxRepeatPlayTimes), 1);
    EXPECT_FLOAT_EQ(f.engine->maxRepeatPlayTimes(), 1.0f);

    // "Until I move on" sits one step above the largest count, is chosen by
    // typing its start, keeps the count beneath it and steps back down to it.
    repeat->setValue(4);
    edit->selectAll();
    QTest::keyClicks(edit, "unt");
    EXPECT_TRUE(repeat->lastInputError().isEmpty());
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(edit->text(), "Until I move on");
    EXPECT_TRUE(storedPracticeOptions(f.defaults.store()).repeatUntilMovedOn);
    EXPECT_EQ(f.defaults.store().integerForKey(MaxRepeatPlayTimes), 4);
    repeat->setValue(99999);
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(edit->text(), "Until I move on");
    QTest::keyClick(edit, Qt::Key_Down);
    EXPECT_EQ(repeat->value(), 99999);
    EXPECT_FALSE(storedPracticeOptions(f.defaults.store()).repeatUntilMovedOn);
}

TEST(PreferenceWindow, ResetRestoresEverythingInOrderButTheRepeatCount)
{
    PreferenceFixture f;
    f.control<QSpinBox>("repeatPlayTimesStepper")->setValue(7);
    f.control<QDoubleSpinBox>("playSpeedStepper")->setValue(2.0);
    f.control<QCheckBox>("showStatusBarSwitch")->setChecked(false);
    ObjectStorage(f.defaults.store()).setKeyboardShortcut(KeyboardShortcut(3, 0), NextSegmentShortcut);
    ObjectStorage(f.defaults.store()).setKeyboardShortcut(KeyboardShortcut(3, 0), ShowNextWordShortcut);
    f.control<QCheckBox>("countCaseSwitch")->setChecked(true);
    f.control<QComboBox>("typoWeightPopUp")->setCurrentIndex(0);
    f.control<QCheckBox>("holdToPlaySwitch")->setChecked(true);
    f.language->changeLanguage("ja");
    f.posted.clear();
    f.objects.clear();

    AlertAnswerer answerer(QStringLiteral("OK"));
    QTest::mouseClick(f.control<QPushButton>("resetButton"), Qt::LeftButton);
    ASSERT_TRUE(answerer.waitForAlerts(1));
    EXPECT_EQ(answerer.seen()[0].text, "Settings Reset");
    EXPECT_EQ(answerer.seen()[0].informativeText,
              "All settings have been restored to their default values");

    EXPECT_EQ(f.posted, (QStringList{"TableBackgroundColorDidChange", "DictationTextColorDidChange",
                                     "ShowLineNumbersDidChange", "ShowAudioWaveDidChange",
                                     "ShowStatusBarDidChange", "DictationTextFontDidChange",
                                     "CheckOptionsDidChange", "CheckOptionsDidChange",
                                     "CheckOptionsDidChange", "CheckOptionsDidChange",
                                     "PracticeOptionsDidChange", "PracticeOptionsDidChange",
                                     "PracticeOptionsDidChange", "PracticeOptionsDidChange",
                                     "PracticeOptionsDidChange", "LanguageDidChangeNotification"}));
    Defaults& d = f.defaults.store();
    EXPECT_DOUBLE_EQ(d.doubleForKey(PlaySpeed), 1.0);
    EXPECT_EQ(f.control<QDoubleSpinBox>("playSpeedStepper")->value(), 1.0);
    EXPECT_EQ(d.integerForKey(MaxRepeatPlayTimes), 7);
    EXPECT_EQ(f.control<QSpinBox>("repeatPlayTimesStepper")->value(), 7);
    EXPECT_TRUE(d.boolForKey(ShowStatusBar));
    EXPECT_TRUE(f.control<QCheckBox>("showStatusBarSwitch")->isChecked());
    EXPECT_EQ(f.language->currentLanguage(), "en");
    EXPECT_EQ(f.control<QComboBox>("languagePopUpButton")->currentData().toString(), "en");
    EXPECT_EQ(ObjectStorage(d).keyboardShortcutForKey(NextSegmentShortcut), KeyboardShortcut(125, 0));
    EXPECT_EQ(f.control<ShortcutTextField>("next")->text(), "Down");
    EXPECT_EQ(ObjectStorage(d).keyboardShortcutForKey(ShowNextWordShortcut),
              KeyboardShortcut(4, 0x40000));
    EXPECT_EQ(f.control<ShortcutTextField>("shownextword")->text(), "Ctrl+H");
    EXPECT_FALSE(d.boolForKey(CountCase));
    EXPECT_FALSE(f.control<QCheckBox>("countCaseSwitch")->isChecked());
    EXPECT_DOUBLE_EQ(d.doubleForKey(TypoWeight), 0.5);
    EXPECT_EQ(f.control<QComboBox>("typoWeightPopUp")->currentText(), "0.5");
    EXPECT_EQ(storedPracticeOptions(d), PracticeOptions());
    EXPECT_FALSE(f.control<QCheckBox>("holdToPlaySwitch")->isChecked());
}

TEST(PreferenceWindow, ResetWithoutAnEnglishItemLeavesTheLanguageAlone)
{
    PreferenceFixture f;
    f.language->changeLanguage("ja");
    auto* languages = f.control<QComboBox>("languagePopUpButton");
    languages->removeItem(languages->findData("en"));
    f.posted.clear();
    AlertAnswerer answerer(QStringLiteral("OK"));
    f.window->resetToDefaults();
    ASSERT_TRUE(answerer.waitForAlerts(1));
    EXPECT_EQ(f.language->currentLanguage(), "ja");
    EXPECT_FALSE(f.posted.contains("LanguageDidChangeNotification"));
}

TEST(PreferenceWindow, ClosingTheWindowWhileAFieldRecordsStoresTheShortcut)
{
    PreferenceFixture f;
    f.window->findChild<QTabWidget*>()->setCurrentIndex(2);
    auto* field = f.control<ShortcutTextField>("playfirst");
    QTest::mouseClick(field, Qt::LeftButton);
    ASSERT_TRUE(field->isRecording());
    QTest::keyClick(field, Qt::Key_P, Qt::ShiftModifier);
    // Nothing is stored while recording goes on.
    EXPECT_EQ(ObjectStorage(f.defaults.store()).keyboardShortcutForKey(PlayFirstShortcut),
              KeyboardShortcut(44, 0x40000));
    f.window->close();
    EXPECT_FALSE(field->isRecording());
    EXPECT_EQ(ObjectStorage(f.defaults.store()).keyboardShortcutForKey(PlayFirstShortcut),
              KeyboardShortcut(35, 0x20000));
}

TEST(PreferenceWindow, EscapeAndCtrlWCloseTheWindowButARecordingFieldTakesEscape)
{
    PreferenceFixture f;
    auto reopen = [&] {
        f.window->show();
        f.window->activateWindow();
        return QTest::qWaitForWindowActive(f.window.get());
    };
    QTest::keyClick(f.control<QDoubleSpinBox>("playSpeedStepper"), Qt::Key_Escape);
    EXPECT_FALSE(f.window->isVisible());
    ASSERT_TRUE(reopen());
    QTest::keyClick(f.window.get(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(f.window->isVisible());

    ASSERT_TRUE(reopen());
    f.window->findChild<QTabWidget*>()->setCurrentIndex(2);
    auto* field = f.control<ShortcutTextField>("next");
    QTest::mouseClick(field, Qt::LeftButton);
    ASSERT_TRUE(field->isRecording());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(f.window->isVisible());
    EXPECT_EQ(field->keyCode(), 53);
    EXPECT_EQ(field->text(), "Esc");
    // Once the field is left, Escape closes again; the key was stored.
    f.window->findChild<QTabWidget*>()->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(f.window->isVisible());
    EXPECT_EQ(ObjectStorage(f.defaults.store()).keyboardShortcutForKey(NextSegmentShortcut),
              KeyboardShortcut(53, 0));
}
