// SPDX-License-Identifier: GPL-3.0-or-later
#include "transcript/LessonCutting.h"

#include <algorithm>
#include <cmath>

namespace CuttingEdits {

namespace {

// A little slack so that a part of exactly kShortestPart, computed from
// frame multiples, still counts.
constexpr double kSlack = 1e-9;

double onFrame(double seconds)
{
    return std::round(seconds / kFrame) * kFrame;
}

bool valid(const LessonCutting& cutting, qsizetype index)
{
    return index >= 0 && index < cutting.segments.size() &&
           cutting.texts.size() == cutting.segments.size();
}

} // namespace

qsizetype segmentAt(const SegmentList& segments, double seconds)
{
    if (segments.isEmpty() || seconds < segments.first().start)
        return -1;
    // The last segment whose start is not after `seconds`.
    const auto after =
        std::upper_bound(segments.cbegin(), segments.cend(), seconds,
                         [](double t, const Segment& segment) { return t < segment.start; });
    const qsizetype index = (after - segments.cbegin()) - 1;
    return seconds <= segments[index].end() + kSlack ? index : -1;
}

std::optional<LessonCutting> split(const LessonCutting& cutting, qsizetype index, double seconds,
                                   std::optional<qsizetype> caret)
{
    if (!valid(cutting, index))
        return std::nullopt;
    const Segment whole = cutting.segments[index];
    const double at = onFrame(seconds);
    if (at - whole.start < kShortestPart - kSlack || whole.end() - at < kShortestPart - kSlack)
        return std::nullopt;
    LessonCutting result = cutting;
    result.segments[index] = Segment{whole.start, at - whole.start};
    result.segments.insert(index + 1, Segment{at, whole.end() - at});
    const QString text = cutting.texts[index];
    QString first = text;
    QString second;
    if (caret && *caret > 0 && *caret < text.size()) {
        first = text.left(*caret);
        second = text.mid(*caret);
        while (first.endsWith(u' '))
            first.chop(1);
        while (second.startsWith(u' '))
            second.remove(0, 1);
    }
    result.texts[index] = first;
    result.texts.insert(index + 1, second);
    return result;
}

std::optional<LessonCutting> mergeWithNext(const LessonCutting& cutting, qsizetype index)
{
    if (!valid(cutting, index) || index + 1 >= cutting.segments.size())
        return std::nullopt;
    LessonCutting result = cutting;
    const Segment& next = cutting.segments[index + 1];
    result.segments[index].duration = next.end() - cutting.segments[index].start;
    result.segments.removeAt(index + 1);
    const QString& a = cutting.texts[index];
    const QString& b = cutting.texts[index + 1];
    result.texts[index] = a.isEmpty() || b.isEmpty() ? a + b : a + u' ' + b;
    result.texts.removeAt(index + 1);
    return result;
}

double allowedStart(const SegmentList& segments, qsizetype index, double seconds)
{
    if (index <= 0 || index >= segments.size())
        return index == 0 && !segments.isEmpty() ? segments.first().start : seconds;
    const double lowest = segments[index - 1].start + kShortestPart;
    const double end =
        index + 1 < segments.size() ? segments[index + 1].start : segments[index].end();
    const double highest = end - kShortestPart;
    if (highest < lowest)
        return segments[index].start;
    // The frame nearest the pointer that still keeps both parts long enough.
    double at = onFrame(std::clamp(seconds, lowest, highest));
    if (at < lowest - kSlack)
        at += kFrame;
    if (at > highest + kSlack)
        at -= kFrame;
    return at < lowest - kSlack || at > highest + kSlack ? segments[index].start : at;
}

std::optional<LessonCutting> moveStart(const LessonCutting& cutting, qsizetype index,
                                       double seconds)
{
    if (!valid(cutting, index) || index == 0)
        return std::nullopt;
    const double at = allowedStart(cutting.segments, index, seconds);
    const Segment old = cutting.segments[index];
    if (std::abs(at - old.start) < kSlack)
        return std::nullopt;
    LessonCutting result = cutting;
    Segment& previous = result.segments[index - 1];
    previous.duration = at - previous.start;
    result.segments[index] = Segment{at, old.end() - at};
    return result;
}

std::optional<LessonCutting> cutAt(const LessonCutting& cutting, const QList<double>& starts,
                                   QList<qsizetype>* from)
{
    if (cutting.segments.isEmpty() || starts.isEmpty() ||
        cutting.texts.size() != cutting.segments.size())
        return std::nullopt;
    const double begin = cutting.segments.first().start;
    const double end = cutting.segments.last().end();
    QList<double> at{begin};
    QList<qsizetype> source{0};
    for (qsizetype i = 1; i < starts.size(); ++i) {
        const double start = onFrame(starts[i]);
        if (start - at.last() < kShortestPart - kSlack || end - start < kShortestPart - kSlack)
            continue;
        at.append(start);
        source.append(i);
    }
    LessonCutting result;
    for (qsizetype k = 0; k < at.size(); ++k) {
        const double next = k + 1 < at.size() ? at[k + 1] : end;
        result.segments.append(Segment{at[k], next - at[k]});
        result.texts.append(QString());
    }
    for (qsizetype j = 0; j < cutting.segments.size(); ++j) {
        const QString& text = cutting.texts[j];
        if (text.isEmpty())
            continue;
        const Segment& old = cutting.segments[j];
        const qsizetype to =
            std::max<qsizetype>(0, segmentAt(result.segments, old.start + old.duration / 2.0));
        QString& row = result.texts[to];
        row = row.isEmpty() ? text : row + u' ' + text;
    }
    if (from)
        *from = std::move(source);
    return result;
}

QList<qsizetype> carriedTo(const SegmentList& before, const SegmentList& after)
{
    QList<qsizetype> to;
    to.reserve(before.size());
    for (const Segment& old : before) {
        qsizetype best = -1;
        double most = 0.0;
        // The first new segment that ends after the old one starts, onwards.
        auto it = std::upper_bound(after.cbegin(), after.cend(), old.start,
                                   [](double t, const Segment& s) { return t < s.end(); });
        for (; it != after.cend() && it->start < old.end(); ++it) {
            const double overlap = std::min(it->end(), old.end()) - std::max(it->start, old.start);
            if (overlap > most + 1e-9) {
                most = overlap;
                best = it - after.cbegin();
            }
        }
        to.append(best);
    }
    return to;
}

} // namespace CuttingEdits
