// SPDX-License-Identifier: GPL-3.0-or-later
// What the preferences window's controls do: each writes its setting at once
// and tells the rest of the application; reset, the font dialog and the
// restart prompt.

#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "common/NotificationNames.h"
#include "dialogs/Dialogs.h"
#include "localization/LanguageManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "preferences/CheckPreferences.h"
#include "preferences/ColorWell.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PracticePreferences.h"
#include "preferences/PracticeSettingsGroup.h"
#include "preferences/PreferenceKeys.h"
#include "preferences/PreferenceViewController.h"
#include "preferences/RepeatTimesSpinBox.h"
#include "preferences/ShortcutTextField.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <cmath>

void PreferenceViewController::saveEngineSettings()
{
    // The window has no sensitivity control; 1 is what it always stores. The
    // values are kept to the steps shown, not to the sum of binary tenths.
    const double duration = std::round(m_minSegmentDurationStepper->value() * 100.0) / 100.0;
    const double speed = std::round(m_playSpeedStepper->value() * 10.0) / 10.0;
    m_engine.saveSettings(duration, 1, speed);
}

void PreferenceViewController::stepperValueChanged()
{
    saveEngineSettings();
}

void PreferenceViewController::playSpeedStepperValueChanged()
{
    // The playing audio takes the new speed at once.
    m_engine.setPlaybackRate(static_cast<float>(m_playSpeedStepper->value()));
    saveEngineSettings();
}

void PreferenceViewController::repeatPlayTimesStepperValueChanged()
{
    // "Until I move on" leaves the count as it was, for when it is let go.
    const int times = m_repeatPlayTimesStepper->value();
    const bool untilMovedOn = m_repeatPlayTimesStepper->isTopEntry(times);
    if (!untilMovedOn) {
        m_engine.setRepeatTimes(times);
        m_engine.saveMaxRepeatTimesSetting(times);
    }
    if (untilMovedOn != storedPracticeOptions(m_defaults).repeatUntilMovedOn) {
        m_defaults.setBool(untilMovedOn, QLatin1String(PreferenceKeys::RepeatUntilMovedOn));
        practiceSettingChanged(PreferenceKeys::RepeatUntilMovedOn);
    }
}

void PreferenceViewController::practiceSettingChanged(const char* key)
{
    m_defaults.synchronize();
    postValue(Notifications::PracticeOptionsDidChange, QString::fromLatin1(key));
}

void PreferenceViewController::postValue(const char* name, const QVariant& object)
{
    m_center.post(QString::fromLatin1(name), object);
}

void PreferenceViewController::tableBackgroundColorChanged(const QColor& color)
{
    ObjectStorage(m_defaults).setColor(color, PreferenceKeys::TableBackgroundColor);
    postValue(Notifications::TableBackgroundColorDidChange, color);
}

void PreferenceViewController::dictationTextColorChanged(const QColor& color)
{
    ObjectStorage(m_defaults).setColor(color, PreferenceKeys::DictationTextColor);
    postValue(Notifications::DictationTextColorDidChange, color);
}

void PreferenceViewController::storeSwitch(const char* key, const char* notification, bool on)
{
    m_defaults.setBool(on, QLatin1String(key));
    m_defaults.synchronize();
    postValue(notification, on);
}

void PreferenceViewController::showLineNumbersChanged(bool on)
{
    storeSwitch(PreferenceKeys::ShowLineNumbers, Notifications::ShowLineNumbersDidChange, on);
}

void PreferenceViewController::showAudioWaveChanged(bool on)
{
    storeSwitch(PreferenceKeys::ShowAudioWave, Notifications::ShowAudioWaveDidChange, on);
}

void PreferenceViewController::showStatusBarChanged(bool on)
{
    storeSwitch(PreferenceKeys::ShowStatusBar, Notifications::ShowStatusBarDidChange, on);
}

void PreferenceViewController::checkSettingChanged(const char* key)
{
    m_defaults.synchronize();
    postValue(Notifications::CheckOptionsDidChange, QString::fromLatin1(key));
}

void PreferenceViewController::countPunctuationChanged(bool on)
{
    m_defaults.setBool(on, QLatin1String(PreferenceKeys::CountPunctuation));
    checkSettingChanged(PreferenceKeys::CountPunctuation);
}

void PreferenceViewController::typoWeightChanged(int index)
{
    const QVariant weight = m_typoWeightPopUp->itemData(index);
    if (!weight.isValid())
        return;
    m_defaults.setDouble(weight.toDouble(), QLatin1String(PreferenceKeys::TypoWeight));
    checkSettingChanged(PreferenceKeys::TypoWeight);
}

void PreferenceViewController::countCaseChanged(bool on)
{
    m_defaults.setBool(on, QLatin1String(PreferenceKeys::CountCase));
    checkSettingChanged(PreferenceKeys::CountCase);
}

void PreferenceViewController::checkAsITypeChanged(bool on)
{
    m_defaults.setBool(on, QLatin1String(PreferenceKeys::CheckAsIType));
    checkSettingChanged(PreferenceKeys::CheckAsIType);
}

void PreferenceViewController::languageChanged(int index)
{
    const QString code = m_languagePopUpButton->itemData(index).toString();
    // Choosing the language the learner already has needs no restart; with
    // nothing chosen yet that is the one the window shows, not English.
    if (code.isEmpty() || code == m_language.interfaceLanguage())
        return;
    m_language.changeLanguage(code);
    restartApp();
}

void PreferenceViewController::showFontPanel()
{
    // The panel lists real families: a stored family that stands for another
    // ("Menlo" for the desktop's fixed-width font) would open it on the first
    // family of the list.
    QFont shown = m_font;
    shown.setFamily(QFontInfo(m_font).family());
    auto* dialog = new QFontDialog(shown, this);
    dialog->setObjectName(QStringLiteral("fontDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFontDialog::fontSelected, this, &PreferenceViewController::changeFont);
    dialog->open();
}

void PreferenceViewController::changeFont(const QFont& font)
{
    m_font = font;
    ObjectStorage(m_defaults).setFont(font, PreferenceKeys::DictationTextFont);
    updateFontDisplayLabel();
    postValue(Notifications::DictationTextFontDidChange, font);
}

void PreferenceViewController::resetToDefaults()
{
    m_engine.resetToDefaultSettings();
    {
        const QSignalBlocker b1(m_minSegmentDurationStepper), b2(m_playSpeedStepper);
        m_minSegmentDurationStepper->setValue(m_engine.minSegmentDuration());
        m_playSpeedStepper->setValue(m_engine.currentRate());
    }
    showRepeatCount();

    m_tableBackgroundColorWell->setColor(DefaultLook::tableBackgroundColor());
    tableBackgroundColorChanged(DefaultLook::tableBackgroundColor());
    m_dictationTextColorWell->setColor(DefaultLook::dictationTextColor());
    dictationTextColorChanged(DefaultLook::dictationTextColor());

    for (QCheckBox* box : {m_showLineNumbersSwitch, m_showAudioWaveSwitch, m_showStatusBarSwitch}) {
        const QSignalBlocker blocker(box);
        box->setChecked(true);
    }
    showLineNumbersChanged(true);
    showAudioWaveChanged(true);
    showStatusBarChanged(true);

    changeFont(DefaultLook::dictationTextFont());

    showCheckSettings(CheckOptions(), false);
    countPunctuationChanged(m_countPunctuationSwitch->isChecked());
    typoWeightChanged(m_typoWeightPopUp->currentIndex());
    countCaseChanged(m_countCaseSwitch->isChecked());
    checkAsITypeChanged(m_checkAsITypeSwitch->isChecked());
    m_practiceGroup->resetToDefaults();

    const int english = m_languagePopUpButton->findData(QStringLiteral("en"));
    if (english >= 0) {
        selectLanguageItem(QStringLiteral("en"));
        m_language.changeLanguage(QStringLiteral("en"));
    }

    resetKeyboard();

    auto* box = new QMessageBox(this);
    box->setObjectName(QStringLiteral("settingsResetSheet"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Information);
    box->setWindowTitle(LocalizedString(Texts::SettingsReset));
    box->setText(LocalizedString(Texts::SettingsReset));
    box->setInformativeText(LocalizedString(Texts::SettingsRestored));
    box->setDefaultButton(box->addButton(LocalizedString(Texts::OK), QMessageBox::AcceptRole));
    box->setWindowModality(Qt::WindowModal);
    box->open();
}

void PreferenceViewController::resetKeyboard()
{
    // Store order: previous, next, play/pause, repeat, play first, split audio,
    // check, show next word.
    ObjectStorage storage(m_defaults);
    for (std::size_t i = 0; i < ShortcutCount; ++i) {
        const ShortcutBinding& binding = shortcutBindings()[i];
        storage.setKeyboardShortcut(binding.defaultShortcut, binding.defaultsKey);
        m_shortcutFields[i]->setShortcut(binding.defaultShortcut.keyCode(),
                                         binding.defaultShortcut.modifierFlags());
    }
}

void PreferenceViewController::restartApp()
{
    // A sheet on the main window, which is what the restart closes.
    QWidget* mainWindow = Dialogs::mainWindow();
    auto* box = new QMessageBox(mainWindow ? mainWindow : this);
    box->setObjectName(QStringLiteral("restartPrompt"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(LocalizedString(Texts::RestartTitle));
    box->setText(LocalizedString(Texts::RestartTitle));
    box->setInformativeText(LocalizedString(Texts::RestartMessage));
    QPushButton* restart =
        box->addButton(LocalizedString(Texts::RestartNow), QMessageBox::AcceptRole);
    QPushButton* later = box->addButton(LocalizedString(Texts::Later), QMessageBox::RejectRole);
    box->setDefaultButton(restart);
    box->setEscapeButton(later);
    connect(box, &QMessageBox::finished, this, [this, box, restart] {
        if (box->clickedButton() == restart)
            emit restartRequested();
    });
    box->setWindowModality(Qt::WindowModal);
    box->open();
}

void PreferenceViewController::endRecording()
{
    // A field that is recording stores what it holds before the window goes.
    if (auto* field = qobject_cast<ShortcutTextField*>(QApplication::focusWidget());
        field && isAncestorOf(field))
        field->clearFocus();
}

void PreferenceViewController::closeEvent(QCloseEvent* event)
{
    endRecording();
    QWidget::closeEvent(event);
}
