// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/ShortcutBindings.h"

#include <QFont>
#include <QWidget>
#include <array>

struct CheckOptions;
class AudioManager;
class ColorWell;
class Defaults;
class LanguageManager;
class NotificationCenter;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGroupBox;
class QPushButton;
class QTabWidget;
class PracticeSettingsGroup;
class RepeatTimesSpinBox;
class ShortcutTextField;

// The preferences window's content, and the window itself: every change is
// written at once and told to the rest of the application through its
// notification or a call on the engine; nothing waits for an OK.
class PreferenceViewController : public QWidget
{
    Q_OBJECT
public:
    PreferenceViewController(AudioManager& engine, Defaults& defaults, NotificationCenter& center,
                             LanguageManager& language, QWidget* parent = nullptr);
    ~PreferenceViewController() override;

    // The controls' values from the engine and the store, then the dump.
    void loadCurrentSettings();
    void printPreference() const;

    // What each control does when the user changes it.
    void stepperValueChanged();
    void playSpeedStepperValueChanged();
    void repeatPlayTimesStepperValueChanged();
    void tableBackgroundColorChanged(const QColor& color);
    void dictationTextColorChanged(const QColor& color);
    void showLineNumbersChanged(bool on);
    void showAudioWaveChanged(bool on);
    void showStatusBarChanged(bool on);
    void languageChanged(int index);
    void countPunctuationChanged(bool on);
    void typoWeightChanged(int index);
    void countCaseChanged(bool on);
    void checkAsITypeChanged(bool on);
    void changeFont(const QFont& font);
    void showFontPanel();

    // Every setting back to its default, in a fixed order, then a sheet
    // saying so. The repeat count is not the engine's to reset and stays.
    void resetToDefaults();
    void resetKeyboard();

    // Asks, as a sheet on this window, whether to restart now for the new language.
    void restartApp();

    static QString fontDisplayText(const QFont& font);

signals:
    // "Restart Now" was chosen.
    void restartRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void setupUI();
    static QWidget* scrollingPage(QWidget* page);
    QWidget* buildGeneralTab();
    QWidget* buildAppearanceTab();
    QWidget* buildShortcutsTab();
    QGroupBox* buildCheckingGroup();
    void initKeyboardShortcuts();
    void fillLanguagePopUp();
    void selectLanguageItem(const QString& code);
    void updateFontDisplayLabel();
    void showCheckSettings(const CheckOptions& options, bool checkAsIType);
    void checkSettingChanged(const char* key);
    void saveEngineSettings();
    void postValue(const char* name, const QVariant& object);
    void practiceSettingChanged(const char* key);
    void showRepeatCount();
    void storeSwitch(const char* key, const char* notification, bool on);
    void endRecording();

    AudioManager& m_engine;
    Defaults& m_defaults;
    NotificationCenter& m_center;
    LanguageManager& m_language;

    QTabWidget* m_tabs = nullptr;
    QDoubleSpinBox* m_minSegmentDurationStepper = nullptr;
    QDoubleSpinBox* m_playSpeedStepper = nullptr;
    RepeatTimesSpinBox* m_repeatPlayTimesStepper = nullptr;
    ColorWell* m_tableBackgroundColorWell = nullptr;
    ColorWell* m_dictationTextColorWell = nullptr;
    QPushButton* m_fontDisplayLabel = nullptr;
    QFont m_font;
    QCheckBox* m_showLineNumbersSwitch = nullptr;
    QCheckBox* m_showAudioWaveSwitch = nullptr;
    QCheckBox* m_showStatusBarSwitch = nullptr;
    QComboBox* m_languagePopUpButton = nullptr;
    QCheckBox* m_countPunctuationSwitch = nullptr;
    QComboBox* m_typoWeightPopUp = nullptr; // item data: the weight, a double
    QCheckBox* m_countCaseSwitch = nullptr;
    QCheckBox* m_checkAsITypeSwitch = nullptr;
    PracticeSettingsGroup* m_practiceGroup = nullptr;
    QPushButton* m_resetButton = nullptr;
    // In the order of shortcutBindings(): previous, next, play/pause, repeat,
    // play first, split audio, check, show next word.
    std::array<ShortcutTextField*, ShortcutCount> m_shortcutFields{};
};
