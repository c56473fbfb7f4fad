// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The two-letter store country for the user's first preferred system language
// (not the chosen interface language). Chinese gives "cn" only when
// `allowChinese` is set; every unknown language gives "us".
QString getCountryCodeForCurrentLanguage(bool allowChinese);

// The same rule for a given language tag ("en-GB", "zh-Hans-CN", "pt_BR").
QString countryCodeForLanguage(const QString& language, bool allowChinese);

// The platform's first preferred language for this user ("en-GB").
QString preferredSystemLanguage();
