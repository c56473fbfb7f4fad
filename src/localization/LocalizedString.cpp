// SPDX-License-Identifier: GPL-3.0-or-later
#include "localization/LocalizedString.h"

#include "localization/LanguageBundle.h"

QString LocalizedString(const QString& key)
{
    return LanguageBundle::main().localizedStringForKey(key, QString(), QString());
}

QString LocalizedString(const char* key)
{
    return LocalizedString(QString::fromUtf8(key));
}

QString stringWithFormat(const QString& format, const QStringList& arguments)
{
    static const QStringList placeholders = {QStringLiteral("%@"), QStringLiteral("%llu"),
                                             QStringLiteral("%ld"), QStringLiteral("%lu"),
                                             QStringLiteral("%d")};
    QString result;
    result.reserve(format.size());
    qsizetype next = 0;
    for (qsizetype i = 0; i < format.size();) {
        if (format[i] != QLatin1Char('%')) {
            result += format[i++];
            continue;
        }
        if (format.mid(i, 2) == QLatin1String("%%")) {
            result += QLatin1Char('%');
            i += 2;
            continue;
        }
        bool replaced = false;
        for (const QString& p : placeholders) {
            if (format.mid(i, p.size()) == p && next < arguments.size()) {
                result += arguments[next++];
                i += p.size();
                replaced = true;
                break;
            }
        }
        if (!replaced)
            result += format[i++];
    }
    return result;
}
