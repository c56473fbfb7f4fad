// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/RepeatTimesSpinBox.h"

#include <QLineEdit>
#include <QToolTip>

RepeatTimesSpinBox::RepeatTimesSpinBox(QWidget* parent) : QSpinBox(parent)
{
    // An unusable text (empty, 0) is read as 0 and brought into range, rather
    // than thrown away for the previous value.
    setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
}

QValidator::State RepeatTimesSpinBox::validate(QString& input, int& /*pos*/) const
{
    const NumericFormatter::Partial partial = m_formatter.isPartialStringValid(input);
    m_lastError = partial.error;
    if (!partial.valid) {
        if (!partial.error.isEmpty() && isVisible())
            QToolTip::showText(mapToGlobal(QPoint(0, height())), partial.error, lineEdit());
        return QValidator::Invalid;
    }
    const std::optional<qint64> value = m_formatter.getObjectValue(input);
    if (!value || *value < minimum() || *value > maximum())
        return QValidator::Intermediate;
    return QValidator::Acceptable;
}

int RepeatTimesSpinBox::valueFromText(const QString& text) const
{
    return static_cast<int>(m_formatter.getObjectValue(text).value_or(0));
}

QString RepeatTimesSpinBox::textFromValue(int value) const
{
    return m_formatter.stringForObjectValue(value);
}
