// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/PracticeRecord.h"

#include "common/VersionedJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QString VersionKey = QStringLiteral("version");
const QString SegmentsKey = QStringLiteral("segments");
const QString ChecksKey = QStringLiteral("checks");
const QString HintsKey = QStringLiteral("hints");
const QString BestKey = QStringLiteral("best");
const QString LastKey = QStringLiteral("last");
const QString SecondsKey = QStringLiteral("seconds");
const QString DatesKey = QStringLiteral("checkDates");
const QString DateFormat = QStringLiteral("yyyy-MM-dd");

std::optional<PracticeRecord> fail(QString* error, const QString& reason)
{
    if (error)
        *error = reason;
    return std::nullopt;
}

bool readCount(const QJsonObject& object, const QString& key, int* count)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return true;
    const double d = value.toDouble(-1.0);
    if (!value.isDouble() || d < 0.0 || d != std::floor(d) || d > std::numeric_limits<int>::max())
        return false;
    *count = static_cast<int>(d);
    return true;
}

bool readScore(const QJsonObject& object, const QString& key, std::optional<double>* score)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return true;
    const double d = value.toDouble(-1.0);
    if (!value.isDouble() || !(d >= 0.0 && d <= 1.0))
        return false;
    *score = d;
    return true;
}

// The segment's fields, or why they cannot be read.
std::optional<SegmentPractice> readSegment(const QJsonValue& value, QString* reason)
{
    if (!value.isObject()) {
        *reason = QStringLiteral("not an object");
        return std::nullopt;
    }
    const QJsonObject object = value.toObject();
    SegmentPractice segment;
    if (!readCount(object, ChecksKey, &segment.checks) ||
        !readCount(object, HintsKey, &segment.hints)) {
        *reason = QStringLiteral("a count that is not a whole number of zero or more");
        return std::nullopt;
    }
    if (!readScore(object, BestKey, &segment.best) || !readScore(object, LastKey, &segment.last)) {
        *reason = QStringLiteral("a score outside 0 to 1");
        return std::nullopt;
    }
    if (segment.best.has_value() != segment.last.has_value() ||
        segment.last.has_value() != (segment.checks > 0) ||
        (segment.best && *segment.best < *segment.last)) {
        *reason = QStringLiteral("scores that do not match its checks");
        return std::nullopt;
    }
    const QJsonValue seconds = object.value(SecondsKey);
    if (!seconds.isUndefined()) {
        const double d = seconds.toDouble(-1.0);
        if (!seconds.isDouble() || !std::isfinite(d) || d < 0.0) {
            *reason = QStringLiteral("a time that is not a number of zero or more");
            return std::nullopt;
        }
        segment.secondsSpent = d;
    }
    const QJsonValue dates = object.value(DatesKey);
    if (!dates.isUndefined() && !dates.isArray()) {
        *reason = QStringLiteral("no list of check dates");
        return std::nullopt;
    }
    for (const QJsonValue& date : dates.toArray()) {
        const QDate day = QDate::fromString(date.toString(), DateFormat);
        if (!day.isValid() || (!segment.checkDates.isEmpty() && day <= segment.checkDates.back())) {
            *reason = QStringLiteral("check dates that are not days in order");
            return std::nullopt;
        }
        segment.checkDates.append(day);
    }
    if (segment.checkDates.size() > segment.checks) {
        *reason = QStringLiteral("more check dates than checks");
        return std::nullopt;
    }
    return segment;
}

} // namespace

bool PracticeRecord::isEmpty() const
{
    return std::all_of(m_segments.cbegin(), m_segments.cend(),
                       [](const SegmentPractice& s) { return s.isEmpty(); });
}

SegmentPractice PracticeRecord::segment(qsizetype index) const
{
    return index >= 0 && index < m_segments.size() ? m_segments.at(index) : SegmentPractice();
}

SegmentPractice* PracticeRecord::grownTo(qsizetype index)
{
    if (index < 0 || index >= MaxSegments)
        return nullptr;
    if (index >= m_segments.size())
        m_segments.resize(index + 1);
    return &m_segments[index];
}

bool PracticeRecord::recordCheck(qsizetype index, double score, QDate day)
{
    if (!std::isfinite(score) || !day.isValid())
        return false;
    SegmentPractice* segment = grownTo(index);
    if (!segment)
        return false;
    score = std::clamp(score, 0.0, 1.0);
    if (segment->checks < std::numeric_limits<int>::max())
        ++segment->checks;
    segment->last = score;
    segment->best = std::max(segment->best.value_or(0.0), score);
    // A clock set back must not break the order the schedule reads.
    if (segment->checkDates.isEmpty() || day > segment->checkDates.back())
        segment->checkDates.append(day);
    return true;
}

bool PracticeRecord::recordHint(qsizetype index)
{
    SegmentPractice* segment = grownTo(index);
    if (!segment)
        return false;
    if (segment->hints < std::numeric_limits<int>::max())
        ++segment->hints;
    return true;
}

bool PracticeRecord::addTime(qsizetype index, double seconds)
{
    if (!std::isfinite(seconds))
        return false;
    SegmentPractice* segment = grownTo(index);
    if (!segment)
        return false;
    segment->secondsSpent += std::max(seconds, 0.0);
    return true;
}

PracticeRecord PracticeRecord::remapped(const QList<qsizetype>& to) const
{
    PracticeRecord record;
    for (qsizetype i = 0; i < m_segments.size() && i < to.size(); ++i) {
        const SegmentPractice& from = m_segments[i];
        SegmentPractice* into = from.isEmpty() ? nullptr : record.grownTo(to[i]);
        if (!into)
            continue;
        into->checks += from.checks;
        into->hints += from.hints;
        into->secondsSpent += from.secondsSpent;
        if (from.best)
            into->best = std::max(into->best.value_or(0.0), *from.best);
        if (from.last)
            into->last = from.last;
        QList<QDate> days = into->checkDates + from.checkDates;
        std::sort(days.begin(), days.end());
        days.erase(std::unique(days.begin(), days.end()), days.end());
        into->checkDates = days;
    }
    return record;
}

QByteArray PracticeRecord::toJson() const
{
    QJsonArray segments;
    for (const SegmentPractice& segment : m_segments) {
        QJsonObject object{{ChecksKey, segment.checks},
                           {HintsKey, segment.hints},
                           {SecondsKey, segment.secondsSpent}};
        if (segment.best)
            object.insert(BestKey, *segment.best);
        if (segment.last)
            object.insert(LastKey, *segment.last);
        QJsonArray dates;
        for (const QDate& day : segment.checkDates)
            dates.append(day.toString(DateFormat));
        object.insert(DatesKey, dates);
        segments.append(object);
    }
    const QJsonObject root{{VersionKey, FormatVersion}, {SegmentsKey, segments}};
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

std::optional<PracticeRecord> PracticeRecord::fromJson(const QByteArray& json, QString* error)
{
    QString unreadable;
    const std::optional<QJsonObject> top = readVersionedJson(
        json, VersionKey, FormatVersion, QStringLiteral("a practice record"), &unreadable);
    if (!top)
        return fail(error, unreadable);
    const QJsonObject& root = *top;
    if (!root.value(SegmentsKey).isArray())
        return fail(error, QStringLiteral("no list of segments"));
    const QJsonArray array = root.value(SegmentsKey).toArray();
    if (array.size() > MaxSegments)
        return fail(error,
                    QStringLiteral("%1 segments, more than %2").arg(array.size()).arg(MaxSegments));

    PracticeRecord record;
    record.m_segments.reserve(array.size());
    for (qsizetype i = 0; i < array.size(); ++i) {
        QString reason;
        std::optional<SegmentPractice> segment = readSegment(array.at(i), &reason);
        if (!segment)
            return fail(error, QStringLiteral("segment %1: %2").arg(i + 1).arg(reason));
        record.m_segments.append(std::move(*segment));
    }
    return record;
}
