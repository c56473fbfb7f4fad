// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reference/ReferenceText.h"

#include <QList>
#include <QString>

// Reads plain text (.txt): one untimed unit per line that holds more than
// white space, its runs of white space made single spaces.
class PlainTextReader
{
public:
    static QList<ReferenceUnit> read(const QString& text);
};
