// SPDX-License-Identifier: GPL-3.0-or-later
#include "localization/CountryCode.h"

#include <QLocale>

QString preferredSystemLanguage()
{
    return QLocale::system().uiLanguages().value(0);
}

QString getCountryCodeForCurrentLanguage(bool allowChinese)
{
    return countryCodeForLanguage(preferredSystemLanguage(), allowChinese);
}

QString countryCodeForLanguage(const QString& language, bool allowChinese)
{
    const QString lang = language.toLower();
    auto is = [&lang](const char* prefix) { return lang.startsWith(QLatin1String(prefix)); };
    // Tested in this order; the first match decides.
    if (is("en"))
        return is("en-gb") ? QStringLiteral("gb") : QStringLiteral("us");
    if (is("ja"))
        return QStringLiteral("jp");
    if (allowChinese && is("zh"))
        return QStringLiteral("cn");
    if (is("de"))
        return QStringLiteral("de");
    if (is("fr"))
        return QStringLiteral("fr");
    if (is("ko"))
        return QStringLiteral("kr");
    if (is("ru"))
        return QStringLiteral("ru");
    if (is("es"))
        return QStringLiteral("es");
    if (is("th"))
        return QStringLiteral("th");
    if (is("vi"))
        return QStringLiteral("vn");
    return QStringLiteral("us");
}
