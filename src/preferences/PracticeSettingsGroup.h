// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/PracticePreferences.h"

#include <QGroupBox>

class Defaults;
class QCheckBox;
class QDoubleSpinBox;
class QSpinBox;

// The General tab's "Practice" group: the pause after each repetition, the
// slower first repetition, the step back on resume, the held play key and
// the hard-sentence threshold. Each change is written to the store at once.
class PracticeSettingsGroup : public QGroupBox
{
    Q_OBJECT
public:
    explicit PracticeSettingsGroup(Defaults& defaults, QWidget* parent = nullptr);

    // Shows the options without writing them.
    void showOptions(const PracticeOptions& options);
    // Shows and writes the defaults.
    void resetToDefaults();

signals:
    // After a change was written; the key names the setting.
    void optionChanged(const char* key);

private:
    void store(const char* key, double value);
    void store(const char* key, bool value);

    Defaults& m_defaults;
    QDoubleSpinBox* m_gapStepper = nullptr;
    QCheckBox* m_slowerFirstSwitch = nullptr;
    QDoubleSpinBox* m_rewindStepper = nullptr;
    QCheckBox* m_holdToPlaySwitch = nullptr;
    QSpinBox* m_thresholdStepper = nullptr;
};
