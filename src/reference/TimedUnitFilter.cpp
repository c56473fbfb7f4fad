// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/TimedUnitFilter.h"

#include "common/Log.h"

#include <QDebug>
#include <algorithm>
#include <cmath>

namespace TimedUnitFilter {

namespace {

QString clock(double seconds)
{
    const qint64 ms = std::llround(seconds * 1000.0);
    return QStringLiteral("%1:%2.%3")
        .arg(ms / 60000)
        .arg((ms / 1000) % 60, 2, 10, QLatin1Char('0'))
        .arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

// Why a unit cannot be placed, or a null string.
QString problem(const ReferenceUnit& unit, double duration)
{
    if (!unit.isTimed() || !std::isfinite(*unit.start) || !std::isfinite(*unit.end))
        return QStringLiteral("it has no times");
    if (*unit.start < 0.0)
        return QStringLiteral("it starts at a negative time");
    if (*unit.end < *unit.start)
        return QStringLiteral("it ends (%1) before it starts (%2)")
            .arg(clock(*unit.end), clock(*unit.start));
    if (duration > 0.0 && *unit.start >= duration)
        return QStringLiteral("it starts at %1, when the audio ends at %2")
            .arg(clock(*unit.start), clock(duration));
    return {};
}

} // namespace

QList<ReferenceUnit> keepUsable(SubtitleSyntax::ParsedUnits units, double duration,
                                const QString& fileName, const QString& place,
                                QString* firstDropReason)
{
    const auto drop = [&](const SubtitleSyntax::ParsedUnit& unit, const QString& why) {
        const QString reason = place.arg(unit.line) + QStringLiteral(" was left out: ") + why;
        qCInfo(lcReference).noquote() << fileName + QStringLiteral(": ") + reason;
        if (firstDropReason && firstDropReason->isEmpty())
            *firstDropReason = reason;
    };

    SubtitleSyntax::ParsedUnits placed;
    placed.reserve(units.size());
    for (SubtitleSyntax::ParsedUnit& unit : units) {
        const QString why = unit.problem.isNull() ? problem(unit.unit, duration) : unit.problem;
        if (!why.isNull()) {
            drop(unit, why);
            continue;
        }
        if (duration > 0.0)
            unit.unit.end = std::min(*unit.unit.end, duration);
        placed.append(std::move(unit));
    }

    const auto earlier = [](const SubtitleSyntax::ParsedUnit& a,
                            const SubtitleSyntax::ParsedUnit& b) {
        return *a.unit.start < *b.unit.start;
    };
    if (!std::is_sorted(placed.cbegin(), placed.cend(), earlier)) {
        std::stable_sort(placed.begin(), placed.end(), earlier);
        qCInfo(lcReference).noquote()
            << fileName + QStringLiteral(": the cues are not in time order; read in time order");
    }

    QList<ReferenceUnit> kept;
    kept.reserve(placed.size());
    for (SubtitleSyntax::ParsedUnit& unit : placed) {
        // Only the one before is compared, so that a file of many cues at one
        // time costs no more than any other.
        if (!kept.isEmpty() && kept.back() == unit.unit) {
            drop(unit, QStringLiteral("it repeats the cue before it"));
            continue;
        }
        kept.append(std::move(unit.unit));
    }
    return kept;
}

} // namespace TimedUnitFilter
