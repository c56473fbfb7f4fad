// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preferences/NumericFormatter.h"

#include <QSpinBox>

// The repeat count: a stepper whose typed text goes through NumericFormatter.
// A sixth character is refused (its message shows as a tool tip beside the
// field); an empty or zero field becomes 0 and then the stepper's minimum.
//
// With a top entry, one step above the largest count reads as that entry's
// text ("Until I move on"); typing the start of the text chooses it, and a
// step down from it comes back to the count chosen before.
class RepeatTimesSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit RepeatTimesSpinBox(QWidget* parent = nullptr);

    // The last refusal's message, empty when the last text passed.
    QString lastInputError() const { return m_lastError; }

    // Makes maximum() + 1 the top entry, shown as `text`, and the maximum.
    void setTopEntry(const QString& text);
    bool isTopEntry(int value) const { return !m_topText.isEmpty() && value == maximum(); }
    void stepBy(int steps) override;

protected:
    QValidator::State validate(QString& input, int& pos) const override;
    void fixup(QString& input) const override;
    int valueFromText(const QString& text) const override;
    QString textFromValue(int value) const override;

private:
    bool startsTopEntry(const QString& input) const;

    NumericFormatter m_formatter;
    QString m_topText;
    int m_lastCount = 1;
    mutable QString m_lastError;
};
