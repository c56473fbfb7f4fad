// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/NumericFormatter.h"

#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"

namespace {
bool allDecimalDigits(const QString& text)
{
    for (const QChar c : text) {
        // ASCII digits only: the value is read with toLongLong, which takes no others.
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}
} // namespace

NumericFormatter::Partial NumericFormatter::isPartialStringValid(const QString& partial) const
{
    if (partial.size() > MaxLength)
        return {false, LocalizedString(Texts::InputTooLong)};
    if (partial.isEmpty())
        return {true, {}};
    if (!allDecimalDigits(partial))
        return {false, {}};
    return {true, {}};
}

std::optional<qint64> NumericFormatter::getObjectValue(const QString& string, QString* error) const
{
    if (string.isEmpty())
        return 0;
    bool ok = false;
    const qint64 value = string.toLongLong(&ok);
    if (ok && allDecimalDigits(string))
        return value;
    if (error)
        *error = stringWithFormat(LocalizedString(Texts::InvalidInput), {string});
    return std::nullopt;
}

QString NumericFormatter::stringForObjectValue(const QVariant& value) const
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Double:
    case QMetaType::Float:
        return value.toString();
    default:
        return {};
    }
}
