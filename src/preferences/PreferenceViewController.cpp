// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/PreferenceViewController.h"

#include "audio/AudioManager.h"
#include "common/Log.h"
#include "common/Utility.h"
#include "localization/LanguageManager.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "localization/PracticeTexts.h"
#include "preferences/CheckPreferences.h"
#include "preferences/ColorWell.h"
#include "preferences/DefaultPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/Keyboard.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PracticeSettingsGroup.h"
#include "preferences/PreferenceKeys.h"
#include "preferences/RepeatTimesSpinBox.h"
#include "preferences/ShortcutTextField.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace {

const char* const kShortcutTexts[ShortcutCount] = {
    Texts::ShortcutPrevious,   Texts::ShortcutNext,      Texts::ShortcutPlayPause,
    Texts::ShortcutRepeatPlay, Texts::ShortcutPlayFirst, Texts::ShortcutSplitAudio,
    Texts::ShortcutCheck,      Texts::ShortcutShowNextWord, Texts::ShortcutSplit,
    Texts::ShortcutMerge,      Texts::ShortcutPractiseHard};

QFormLayout* makeForm(QWidget* page)
{
    auto* form = new QFormLayout(page);
    // Long labels (Russian, German) put their control on the next line
    // instead of being cut off.
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return form;
}

QLabel* buddyLabel(const char* text, QWidget* control)
{
    auto* label = new QLabel(LocalizedString(text));
    label->setBuddy(control);
    control->setAccessibleName(LocalizedString(text));
    return label;
}

} // namespace

PreferenceViewController::PreferenceViewController(AudioManager& engine, Defaults& defaults,
                                                   NotificationCenter& center,
                                                   LanguageManager& language, QWidget* parent)
    : QWidget(parent, Qt::Window), m_engine(engine), m_defaults(defaults), m_center(center),
      m_language(language)
{
    setObjectName(QStringLiteral("preferencesWindow"));
    setWindowTitle(LocalizedString(Texts::Preferences));
    setAccessibleName(LocalizedString(Texts::Preferences));
    setupUI();
    initKeyboardShortcuts();
    loadCurrentSettings();
    resize(400, 500);
}

PreferenceViewController::~PreferenceViewController() = default;

void PreferenceViewController::setupUI()
{
    auto* layout = new QVBoxLayout(this);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("preferenceTabs"));
    m_tabs->addTab(scrollingPage(buildGeneralTab()), LocalizedString(Texts::TabGeneral));
    m_tabs->addTab(buildAppearanceTab(), LocalizedString(Texts::TabAppearance));
    m_tabs->addTab(scrollingPage(buildShortcutsTab()), LocalizedString(Texts::TabShortcuts));
    layout->addWidget(m_tabs);

    m_resetButton = new QPushButton(LocalizedString(Texts::ResetToDefaults), this);
    m_resetButton->setObjectName(QStringLiteral("resetButton"));
    m_resetButton->setAutoDefault(false);
    connect(m_resetButton, &QPushButton::clicked, this, &PreferenceViewController::resetToDefaults);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(m_resetButton);
    layout->addLayout(bottom);

    // A click on an empty part of the window takes the focus, which ends a
    // shortcut field's recording.
    setFocusPolicy(Qt::ClickFocus);

    // Escape and Ctrl+W close the window, as they close a desktop's settings
    // windows. A recording shortcut field takes every key first, Escape too.
    auto* closeWindow = new QAction(this);
    closeWindow->setObjectName(QStringLiteral("closePreferences"));
    QList<QKeySequence> keys{QKeySequence(Qt::Key_Escape)};
    keys += QKeySequence::keyBindings(QKeySequence::Close);
    closeWindow->setShortcuts(keys);
    closeWindow->setShortcutContext(Qt::WindowShortcut);
    connect(closeWindow, &QAction::triggered, this, &QWidget::close);
    addAction(closeWindow);
}

QWidget* PreferenceViewController::scrollingPage(QWidget* page)
{
    // A page taller than the window scrolls rather than growing the window,
    // and a field reached with Tab is scrolled to.
    auto* scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return scroll;
}

QWidget* PreferenceViewController::buildGeneralTab()
{
    auto* page = new QWidget;
    page->setFocusPolicy(Qt::ClickFocus);
    // A grid, not a form: a long label (Russian, German) wraps onto more
    // lines and its spin box stays beside it, at the page's right edge.
    auto* grid = new QGridLayout(page);
    grid->setColumnStretch(0, 1);
    int row = 0;
    auto addRow = [grid, &row](const char* text, QWidget* control) {
        QLabel* label = buddyLabel(text, control);
        label->setWordWrap(true);
        grid->addWidget(label, row, 0);
        grid->addWidget(control, row++, 1);
    };

    m_minSegmentDurationStepper = new QDoubleSpinBox;
    m_minSegmentDurationStepper->setObjectName(QStringLiteral("minSegmentDurationStepper"));
    m_minSegmentDurationStepper->setRange(1.0, 10.0);
    m_minSegmentDurationStepper->setSingleStep(0.1);
    m_minSegmentDurationStepper->setDecimals(2);
    // Typed values count when the field is left or Return is pressed, not at
    // every keystroke.
    m_minSegmentDurationStepper->setKeyboardTracking(false);
    connect(m_minSegmentDurationStepper, &QDoubleSpinBox::valueChanged, this,
            &PreferenceViewController::stepperValueChanged);
    addRow(Texts::MinSegmentDurationLabel, m_minSegmentDurationStepper);

    m_playSpeedStepper = new QDoubleSpinBox;
    m_playSpeedStepper->setObjectName(QStringLiteral("playSpeedStepper"));
    m_playSpeedStepper->setRange(0.3, 3.0);
    m_playSpeedStepper->setSingleStep(0.1);
    m_playSpeedStepper->setDecimals(1);
    m_playSpeedStepper->setSuffix(QStringLiteral("×"));
    m_playSpeedStepper->setKeyboardTracking(false);
    connect(m_playSpeedStepper, &QDoubleSpinBox::valueChanged, this,
            &PreferenceViewController::playSpeedStepperValueChanged);
    addRow(Texts::PlaySpeedLabel, m_playSpeedStepper);

    m_repeatPlayTimesStepper = new RepeatTimesSpinBox;
    m_repeatPlayTimesStepper->setObjectName(QStringLiteral("repeatPlayTimesStepper"));
    m_repeatPlayTimesStepper->setRange(1, 99999);
    m_repeatPlayTimesStepper->setTopEntry(LocalizedString(Texts::RepeatUntilMovedOn));
    m_repeatPlayTimesStepper->setSingleStep(1);
    m_repeatPlayTimesStepper->setKeyboardTracking(false);
    connect(m_repeatPlayTimesStepper, &QSpinBox::valueChanged, this,
            &PreferenceViewController::repeatPlayTimesStepperValueChanged);
    addRow(Texts::RepeatTimesLabel, m_repeatPlayTimesStepper);

    m_languagePopUpButton = new QComboBox;
    m_languagePopUpButton->setObjectName(QStringLiteral("languagePopUpButton"));
    fillLanguagePopUp();
    connect(m_languagePopUpButton, &QComboBox::activated, this,
            &PreferenceViewController::languageChanged);
    // Under its label, with the width of the page: each language is named
    // twice ("Русский — Russian"), which a field beside the label cuts off.
    grid->addWidget(buddyLabel(Texts::LanguageLabel, m_languagePopUpButton), row++, 0, 1, 2);
    grid->addWidget(m_languagePopUpButton, row++, 0, 1, 2, Qt::AlignLeft);
    auto* note = new QLabel(LocalizedString(Texts::LanguageRestartNote));
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(note, row++, 0, 1, 2);
    grid->addWidget(buildCheckingGroup(), row++, 0, 1, 2);
    m_practiceGroup = new PracticeSettingsGroup(m_defaults);
    connect(m_practiceGroup, &PracticeSettingsGroup::optionChanged, this,
            &PreferenceViewController::practiceSettingChanged);
    grid->addWidget(m_practiceGroup, row++, 0, 1, 2);
    grid->setRowStretch(row, 1);
    return page;
}

QGroupBox* PreferenceViewController::buildCheckingGroup()
{
    auto* group = new QGroupBox(LocalizedString(Texts::PrefChecking));
    group->setObjectName(QStringLiteral("checkingGroup"));
    auto* grid = new QGridLayout(group);
    grid->setColumnStretch(0, 1);
    int row = 0;
    auto addSwitch = [&](const char* name, const char* text,
                         void (PreferenceViewController::*slot)(bool)) {
        auto* box = new QCheckBox(LocalizedString(text));
        box->setObjectName(QLatin1String(name));
        connect(box, &QCheckBox::toggled, this, slot);
        grid->addWidget(box, row++, 0, 1, 2);
        return box;
    };
    m_countPunctuationSwitch = addSwitch("countPunctuationSwitch", Texts::PrefCountPunctuation,
                                         &PreferenceViewController::countPunctuationChanged);

    m_typoWeightPopUp = new QComboBox;
    m_typoWeightPopUp->setObjectName(QStringLiteral("typoWeightPopUp"));
    // Numbers in the interface's way of writing them ("0,5" in German).
    for (double weight : TypoWeights)
        m_typoWeightPopUp->addItem(QLocale().toString(weight), weight);
    connect(m_typoWeightPopUp, &QComboBox::currentIndexChanged, this,
            &PreferenceViewController::typoWeightChanged);
    QLabel* label = buddyLabel(Texts::PrefTypoWeight, m_typoWeightPopUp);
    label->setWordWrap(true);
    grid->addWidget(label, row, 0);
    grid->addWidget(m_typoWeightPopUp, row++, 1);

    m_countCaseSwitch = addSwitch("countCaseSwitch", Texts::PrefCountCase,
                                  &PreferenceViewController::countCaseChanged);
    m_checkAsITypeSwitch = addSwitch("checkAsITypeSwitch", Texts::PrefCheckAsIType,
                                     &PreferenceViewController::checkAsITypeChanged);
    return group;
}

QWidget* PreferenceViewController::buildAppearanceTab()
{
    auto* page = new QWidget;
    page->setFocusPolicy(Qt::ClickFocus);
    QFormLayout* form = makeForm(page);

    m_tableBackgroundColorWell = new ColorWell;
    m_tableBackgroundColorWell->setObjectName(QStringLiteral("tableBackgroundColorWell"));
    connect(m_tableBackgroundColorWell, &ColorWell::colorChanged, this,
            &PreferenceViewController::tableBackgroundColorChanged);
    form->addRow(buddyLabel(Texts::TableBackgroundLabel, m_tableBackgroundColorWell),
                 m_tableBackgroundColorWell);

    m_dictationTextColorWell = new ColorWell;
    m_dictationTextColorWell->setObjectName(QStringLiteral("dictationTextColorWell"));
    connect(m_dictationTextColorWell, &ColorWell::colorChanged, this,
            &PreferenceViewController::dictationTextColorChanged);
    form->addRow(buddyLabel(Texts::TextColorLabel, m_dictationTextColorWell),
                 m_dictationTextColorWell);

    m_fontDisplayLabel = new QPushButton;
    m_fontDisplayLabel->setObjectName(QStringLiteral("fontDisplayLabel"));
    m_fontDisplayLabel->setToolTip(LocalizedString(Texts::ChooseFont));
    connect(m_fontDisplayLabel, &QPushButton::clicked, this,
            &PreferenceViewController::showFontPanel);
    form->addRow(buddyLabel(Texts::FontLabel, m_fontDisplayLabel), m_fontDisplayLabel);

    auto makeSwitch = [&](const char* name, const char* text,
                          void (PreferenceViewController::*slot)(bool)) {
        auto* box = new QCheckBox(LocalizedString(text));
        box->setObjectName(QLatin1String(name));
        connect(box, &QCheckBox::toggled, this, slot);
        form->addRow(box);
        return box;
    };
    m_showLineNumbersSwitch = makeSwitch("showLineNumbersSwitch", Texts::ShowLineNumbersLabel,
                                         &PreferenceViewController::showLineNumbersChanged);
    m_showAudioWaveSwitch = makeSwitch("showAudioWaveSwitch", Texts::ShowAudioWaveLabel,
                                       &PreferenceViewController::showAudioWaveChanged);
    m_showStatusBarSwitch = makeSwitch("showStatusBarSwitch", Texts::ShowStatusBarLabel,
                                       &PreferenceViewController::showStatusBarChanged);
    return page;
}

QWidget* PreferenceViewController::buildShortcutsTab()
{
    auto* page = new QWidget;
    page->setFocusPolicy(Qt::ClickFocus);
    QFormLayout* form = makeForm(page);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* hint = new QLabel(LocalizedString(Texts::ShortcutHint));
    hint->setWordWrap(true);
    form->addRow(hint);
    for (std::size_t i = 0; i < ShortcutCount; ++i) {
        auto* field = new ShortcutTextField;
        field->setObjectName(QLatin1String(shortcutBindings()[i].fieldIdentifier));
        field->setMinimumWidth(120);
        m_shortcutFields[i] = field;
        form->addRow(buddyLabel(kShortcutTexts[i], field), field);
    }
    return page;
}

void PreferenceViewController::initKeyboardShortcuts()
{
    for (std::size_t i = 0; i < ShortcutCount; ++i) {
        const QString key = QLatin1String(shortcutBindings()[i].defaultsKey);
        // No check for a key another command uses: the first in matching
        // order wins at play time.
        connect(m_shortcutFields[i], &ShortcutTextField::shortcutChanged, this,
                [this, key](qint64 keyCode, quint64 flags) {
                    ObjectStorage(m_defaults)
                        .setKeyboardShortcut(KeyboardShortcut(keyCode, flags), key);
                    m_defaults.synchronize();
                });
    }
}

void PreferenceViewController::fillLanguagePopUp()
{
    const QSignalBlocker blocker(m_languagePopUpButton);
    m_languagePopUpButton->clear();
    // Each language in its own words first, so a learner finds theirs in an
    // interface they cannot read; then in the interface's words.
    for (const LanguageManager::Language& language : LanguageManager::supportedLanguages()) {
        const QString code = QString::fromLatin1(language.code);
        const QString own = m_language.nativeLanguageName(code);
        const QString here = LocalizedString(language.englishName);
        m_languagePopUpButton->addItem(own == here ? own : own + QStringLiteral(" — ") + here,
                                       code);
    }
    selectLanguageItem(m_language.interfaceLanguage());
}

void PreferenceViewController::selectLanguageItem(const QString& code)
{
    const int index = m_languagePopUpButton->findData(code);
    if (index >= 0) {
        const QSignalBlocker blocker(m_languagePopUpButton);
        m_languagePopUpButton->setCurrentIndex(index);
    }
}

void PreferenceViewController::loadCurrentSettings()
{
    using namespace PreferenceKeys;
    m_engine.loadSettings();
    {
        const QSignalBlocker b1(m_minSegmentDurationStepper), b2(m_playSpeedStepper);
        m_minSegmentDurationStepper->setValue(m_engine.minSegmentDuration());
        m_playSpeedStepper->setValue(m_engine.currentRate());
    }
    showRepeatCount();
    m_practiceGroup->showOptions(storedPracticeOptions(m_defaults));
    const ObjectStorage storage(m_defaults);
    m_tableBackgroundColorWell->setColor(
        storage.colorForKey(TableBackgroundColor).value_or(DefaultLook::tableBackgroundColor()));
    m_dictationTextColorWell->setColor(
        storage.colorForKey(DictationTextColor).value_or(DefaultLook::dictationTextColor()));
    {
        const QSignalBlocker b1(m_showLineNumbersSwitch), b2(m_showAudioWaveSwitch),
            b3(m_showStatusBarSwitch);
        m_showLineNumbersSwitch->setChecked(m_defaults.boolForKey(ShowLineNumbers));
        m_showAudioWaveSwitch->setChecked(m_defaults.boolForKey(ShowAudioWave));
        m_showStatusBarSwitch->setChecked(m_defaults.boolForKey(ShowStatusBar));
    }
    m_font = storage.fontForKey(DictationTextFont).value_or(DefaultLook::dictationTextFont());
    updateFontDisplayLabel();
    for (std::size_t i = 0; i < ShortcutCount; ++i) {
        const ShortcutBinding& binding = shortcutBindings()[i];
        const KeyboardShortcut shortcut =
            storage.keyboardShortcutForKey(binding.defaultsKey).value_or(binding.defaultShortcut);
        m_shortcutFields[i]->setShortcut(shortcut.keyCode(), shortcut.modifierFlags());
    }
    showCheckSettings(storedCheckOptions(m_defaults), storedCheckAsIType(m_defaults));
    selectLanguageItem(m_language.interfaceLanguage());
    printPreference();
}

void PreferenceViewController::showRepeatCount()
{
    // The count stays underneath "Until I move on", for a step down from it.
    const QSignalBlocker blocker(m_repeatPlayTimesStepper);
    m_repeatPlayTimesStepper->setValue(static_cast<int>(m_engine.maxRepeatPlayTimes()));
    if (storedPracticeOptions(m_defaults).repeatUntilMovedOn)
        m_repeatPlayTimesStepper->setValue(m_repeatPlayTimesStepper->maximum());
}

void PreferenceViewController::showCheckSettings(const CheckOptions& options, bool checkAsIType)
{
    const QSignalBlocker b1(m_countPunctuationSwitch), b2(m_typoWeightPopUp),
        b3(m_countCaseSwitch), b4(m_checkAsITypeSwitch);
    m_countPunctuationSwitch->setChecked(options.countPunctuation);
    const auto nearest = std::min_element(
        TypoWeights.begin(), TypoWeights.end(), [&options](double a, double b) {
            return std::abs(a - options.typoWeight) < std::abs(b - options.typoWeight);
        });
    m_typoWeightPopUp->setCurrentIndex(int(nearest - TypoWeights.begin()));
    m_countCaseSwitch->setChecked(options.countCase);
    m_checkAsITypeSwitch->setChecked(checkAsIType);
}

QString PreferenceViewController::fontDisplayText(const QFont& font)
{
    return QStringLiteral("%1 - %2").arg(font.family()).arg(font.pointSizeF(), 0, 'f', 1);
}

void PreferenceViewController::updateFontDisplayLabel()
{
    m_fontDisplayLabel->setText(fontDisplayText(m_font));
}

void PreferenceViewController::printPreference() const
{
    auto hex = [](const QColor& c) { return Utility::hexStringFromColor(c).value_or(QString()); };
    qCInfo(lcPreferences, "========Preference===================================================");
    qCInfo(lcPreferences, "minSegmentDuration=%f", m_minSegmentDurationStepper->value());
    qCInfo(lcPreferences, "playSpeed=%f", m_playSpeedStepper->value());
    qCInfo(lcPreferences, "repeatPlayTimes=%d", m_repeatPlayTimesStepper->value());
    const QColor text = m_dictationTextColorWell->color();
    const QColor background = m_tableBackgroundColorWell->color();
    qCInfo(lcPreferences, "dictationTextColor=%s,value=%s",
           qUtf8Printable(text.name(QColor::HexArgb)), qUtf8Printable(hex(text)));
    qCInfo(lcPreferences, "tableBackgroundColor=%s,value=%s",
           qUtf8Printable(background.name(QColor::HexArgb)), qUtf8Printable(hex(background)));
    qCInfo(lcPreferences, "showLineNumber=%d", int(m_showLineNumbersSwitch->isChecked()));
    qCInfo(lcPreferences, "showAudioWave=%d", int(m_showAudioWaveSwitch->isChecked()));
    qCInfo(lcPreferences, "showStatusBar=%d", int(m_showStatusBarSwitch->isChecked()));
    qCInfo(lcPreferences, "dictionfont=%s", qUtf8Printable(m_fontDisplayLabel->text()));
    for (std::size_t i = 0; i < ShortcutCount; ++i) {
        const ShortcutTextField* field = m_shortcutFields[i];
        qCInfo(lcPreferences, "%s key,%s,keycode=%lld,modifierflags=%llu",
               shortcutBindings()[i].fieldIdentifier,
               qUtf8Printable(Keyboard::keyCodeToString(field->keyCode())),
               static_cast<long long>(field->keyCode()),
               static_cast<unsigned long long>(field->modifierFlags()));
    }
    qCInfo(lcPreferences, "countPunctuation=%d", int(m_countPunctuationSwitch->isChecked()));
    qCInfo(lcPreferences, "typoWeight=%f", m_typoWeightPopUp->currentData().toDouble());
    qCInfo(lcPreferences, "countCase=%d", int(m_countCaseSwitch->isChecked()));
    qCInfo(lcPreferences, "checkAsIType=%d", int(m_checkAsITypeSwitch->isChecked()));
    qCInfo(lcPreferences, "=====================================================================");
}
