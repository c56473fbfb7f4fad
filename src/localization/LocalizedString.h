// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// The text the user sees for an English source text (a key from
// LocalizedTexts.h), in the interface language: the main bundle's lookup with
// an empty default value and the main table.
QString LocalizedString(const QString& key);
QString LocalizedString(const char* key);

// Fills a format of the localised texts: each "%@", "%d", "%ld", "%lu", "%llu"
// takes the next argument as it is, "%%" is a percent sign. Missing arguments
// leave the placeholder as written.
QString stringWithFormat(const QString& format, const QStringList& arguments);
