// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/PlainTextReader.h"

#include "reference/SubtitleSyntax.h"

QList<ReferenceUnit> PlainTextReader::read(const QString& text)
{
    QList<ReferenceUnit> units;
    for (const QStringView line : SubtitleSyntax::splitLines(text)) {
        QString unit = SubtitleSyntax::collapseSpaces(line);
        if (!unit.isEmpty())
            units.append(ReferenceUnit{std::move(unit), {}, {}});
    }
    return units;
}
