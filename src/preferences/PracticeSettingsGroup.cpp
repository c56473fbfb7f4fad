// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/PracticeSettingsGroup.h"

#include "localization/LocalizedString.h"
#include "localization/PracticeTexts.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <cmath>

namespace {

QDoubleSpinBox* secondsStepper(const char* name, double maximum)
{
    auto* stepper = new QDoubleSpinBox;
    stepper->setObjectName(QLatin1String(name));
    stepper->setRange(0.0, maximum);
    stepper->setSingleStep(0.5);
    stepper->setDecimals(1);
    stepper->setSuffix(QLatin1Char(' ') + LocalizedString(Texts::SecondsUnit));
    stepper->setKeyboardTracking(false);
    return stepper;
}

} // namespace

PracticeSettingsGroup::PracticeSettingsGroup(Defaults& defaults, QWidget* parent)
    : QGroupBox(LocalizedString(Texts::PrefPractice), parent), m_defaults(defaults)
{
    using namespace PreferenceKeys;
    setObjectName(QStringLiteral("practiceGroup"));
    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(0, 1);
    int row = 0;
    auto addRow = [&](const char* text, QWidget* field) {
        auto* label = new QLabel(LocalizedString(text));
        label->setBuddy(field);
        label->setWordWrap(true);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row++, 1);
    };
    auto addSwitch = [&](const char* name, const char* text) {
        auto* box = new QCheckBox(LocalizedString(text));
        box->setObjectName(QLatin1String(name));
        grid->addWidget(box, row++, 0, 1, 2);
        return box;
    };

    m_gapStepper = secondsStepper("repeatGapStepper", MaxRepeatGap);
    connect(m_gapStepper, &QDoubleSpinBox::valueChanged, this, [this](double seconds) {
        // A typed 1.3 is the step it is nearest to, as the store reads it.
        const double step = std::round(seconds / RepeatGapStep) * RepeatGapStep;
        if (step != seconds) {
            const QSignalBlocker blocker(m_gapStepper);
            m_gapStepper->setValue(step);
        }
        store(RepeatGap, step);
    });
    addRow(Texts::PrefRepeatGap, m_gapStepper);

    m_slowerFirstSwitch = addSwitch("slowerFirstSwitch", Texts::PrefSlowerFirst);
    connect(m_slowerFirstSwitch, &QCheckBox::toggled, this,
            [this](bool on) { store(SlowerFirst, on); });

    m_rewindStepper = secondsStepper("rewindOnResumeStepper", MaxRewindOnResume);
    connect(m_rewindStepper, &QDoubleSpinBox::valueChanged, this,
            [this](double seconds) { store(RewindOnResume, seconds); });
    addRow(Texts::PrefRewindOnResume, m_rewindStepper);

    m_holdToPlaySwitch = addSwitch("holdToPlaySwitch", Texts::PrefHoldToPlay);
    connect(m_holdToPlaySwitch, &QCheckBox::toggled, this,
            [this](bool on) { store(HoldToPlay, on); });

    m_thresholdStepper = new QSpinBox;
    m_thresholdStepper->setObjectName(QStringLiteral("hardThresholdStepper"));
    m_thresholdStepper->setRange(0, 100);
    m_thresholdStepper->setSingleStep(5);
    m_thresholdStepper->setSuffix(QStringLiteral(" %"));
    m_thresholdStepper->setKeyboardTracking(false);
    connect(m_thresholdStepper, &QSpinBox::valueChanged, this,
            [this](int percent) { store(HardSentenceThreshold, percent / 100.0); });
    addRow(Texts::PrefHardThreshold, m_thresholdStepper);
}

void PracticeSettingsGroup::showOptions(const PracticeOptions& options)
{
    const QSignalBlocker b1(m_gapStepper), b2(m_slowerFirstSwitch), b3(m_rewindStepper),
        b4(m_holdToPlaySwitch), b5(m_thresholdStepper);
    m_gapStepper->setValue(options.repeatGap);
    m_slowerFirstSwitch->setChecked(options.slowerFirst);
    m_rewindStepper->setValue(options.rewindOnResume);
    m_holdToPlaySwitch->setChecked(options.holdToPlay);
    m_thresholdStepper->setValue(int(std::lround(options.hardThreshold * 100)));
}

void PracticeSettingsGroup::resetToDefaults()
{
    using namespace PreferenceKeys;
    const PracticeOptions defaults;
    showOptions(defaults);
    store(RepeatGap, defaults.repeatGap);
    store(SlowerFirst, defaults.slowerFirst);
    store(RewindOnResume, defaults.rewindOnResume);
    store(HoldToPlay, defaults.holdToPlay);
    store(HardSentenceThreshold, defaults.hardThreshold);
}

void PracticeSettingsGroup::store(const char* key, double value)
{
    m_defaults.setDouble(value, QLatin1String(key));
    emit optionChanged(key);
}

void PracticeSettingsGroup::store(const char* key, bool value)
{
    m_defaults.setBool(value, QLatin1String(key));
    emit optionChanged(key);
}
