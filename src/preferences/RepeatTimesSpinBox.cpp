// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/RepeatTimesSpinBox.h"

#include <QLineEdit>
#include <QToolTip>

RepeatTimesSpinBox::RepeatTimesSpinBox(QWidget* parent) : QSpinBox(parent)
{
    // An unusable text (empty, 0) is read as 0 and brought into range, rather
    // than thrown away for the previous value.
    setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    connect(this, &QSpinBox::valueChanged, this, [this](int value) {
        if (!isTopEntry(value))
            m_lastCount = value;
    });
}

void RepeatTimesSpinBox::setTopEntry(const QString& text)
{
    m_topText = text;
    setMaximum(maximum() + 1);
}

bool RepeatTimesSpinBox::startsTopEntry(const QString& input) const
{
    const QString typed = input.trimmed();
    return !m_topText.isEmpty() && !typed.isEmpty() && !typed.front().isDigit() &&
           m_topText.startsWith(typed, Qt::CaseInsensitive);
}

void RepeatTimesSpinBox::stepBy(int steps)
{
    if (steps < 0 && isTopEntry(value())) {
        setValue(m_lastCount);
        return;
    }
    QSpinBox::stepBy(steps);
}

QValidator::State RepeatTimesSpinBox::validate(QString& input, int& /*pos*/) const
{
    if (startsTopEntry(input)) {
        m_lastError.clear();
        return input.trimmed().compare(m_topText, Qt::CaseInsensitive) == 0
                   ? QValidator::Acceptable
                   : QValidator::Intermediate;
    }
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

void RepeatTimesSpinBox::fixup(QString& input) const
{
    // The start of the top entry's text, when the field is left, is the entry.
    if (startsTopEntry(input))
        input = m_topText;
    else
        QSpinBox::fixup(input);
}

int RepeatTimesSpinBox::valueFromText(const QString& text) const
{
    if (startsTopEntry(text))
        return maximum();
    return static_cast<int>(m_formatter.getObjectValue(text).value_or(0));
}

QString RepeatTimesSpinBox::textFromValue(int value) const
{
    if (isTopEntry(value))
        return m_topText;
    return m_formatter.stringForObjectValue(value);
}
