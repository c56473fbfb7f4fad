// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/NumericFormatter.h"

#include <QSpinBox>

// The repeat count: a stepper whose typed text goes through NumericFormatter.
// A sixth character is refused (its message shows as a tool tip beside the
// field); an empty or zero field becomes 0 and then the stepper's minimum.
class RepeatTimesSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit RepeatTimesSpinBox(QWidget* parent = nullptr);

    // The last refusal's message, empty when the last text passed.
    QString lastInputError() const { return m_lastError; }

protected:
    QValidator::State validate(QString& input, int& pos) const override;
    int valueFromText(const QString& text) const override;
    QString textFromValue(int value) const override;

private:
    NumericFormatter m_formatter;
    mutable QString m_lastError;
};
