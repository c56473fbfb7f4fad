// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>
#include <QtGlobal>
#include <optional>

// Guards the repeat-count field: only decimal digits, at most five of them.
// Used by the field's validation, so it is kept free of widgets.
class NumericFormatter
{
public:
    struct Partial
    {
        bool valid = false;
        QString error; // localised; empty when valid
    };

    // Whether the text being typed may stand. Six characters or more are
    // refused with "Input must not exceed 6 digits" (so at most five pass,
    // whatever the wording says); the empty string passes; otherwise digits only.
    Partial isPartialStringValid(const QString& partial) const;

    // The empty string is 0, a string of digits its value; anything else
    // fails with "Invalid input: %@".
    std::optional<qint64> getObjectValue(const QString& string, QString* error = nullptr) const;

    // The number's decimal text; empty for anything that is not a number.
    QString stringForObjectValue(const QVariant& value) const;

    static constexpr qsizetype MaxLength = 5;
};
