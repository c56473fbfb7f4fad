// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/ReferenceMapping.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace {

void appendJoined(QString& to, const QString& text)
{
    if (!to.isEmpty())
        to.append(u' ');
    to.append(text);
}

QStringList mapTimed(const QList<ReferenceUnit>& units, const QList<double>& starts)
{
    QStringList texts(starts.size());
    for (const ReferenceUnit& unit : units) {
        const double midpoint = (*unit.start + *unit.end) / 2.0;
        const auto after = std::upper_bound(starts.cbegin(), starts.cend(), midpoint);
        const qsizetype segment = std::max<qsizetype>(0, (after - starts.cbegin()) - 1);
        appendJoined(texts[segment], unit.text);
    }
    return texts;
}

// Where each segment ends, as a share of the whole from 0 to 1. Segment 0
// holds what comes before its start.
QList<double> endShares(const QList<double>& starts, double audioDuration)
{
    const qsizetype n = starts.size();
    const double total = std::max(audioDuration, starts.back());
    QList<double> shares(n);
    for (qsizetype i = 0; i < n; ++i) {
        if (total > 0.0)
            shares[i] = i + 1 < n ? starts[i + 1] / total : 1.0;
        else // no times at all: even shares
            shares[i] = static_cast<double>(i + 1) / static_cast<double>(n);
    }
    return shares;
}

QStringList mapBySentences(const QStringList& sentences, const QList<double>& starts,
                           double audioDuration)
{
    const qsizetype n = starts.size();
    const qsizetype m = sentences.size();
    // before[k]: the characters of the first k sentences.
    QList<double> before(m + 1, 0.0);
    for (qsizetype k = 0; k < m; ++k)
        before[k + 1] = before[k] + static_cast<double>(sentences[k].size());
    const double characters = before[m];

    const QList<double> shares = endShares(starts, audioDuration);
    QStringList texts(n);
    qsizetype next = 0; // the first sentence not yet dealt out
    for (qsizetype i = 0; i < n; ++i) {
        qsizetype end = m;
        if (i + 1 < n) {
            const double target = characters * shares[i];
            // The nearest boundary at or after `next`; of two as near, the earlier.
            end = std::lower_bound(before.cbegin() + next, before.cend(), target) - before.cbegin();
            if (end > next && (end > m || target - before[end - 1] <= before[end] - target))
                --end;
            end = std::min(end, m);
        }
        for (qsizetype k = next; k < end; ++k)
            appendJoined(texts[i], sentences[k]);
        next = std::max(next, end);
    }
    return texts;
}

} // namespace

QStringList ReferenceMapping::sentences(const QList<ReferenceUnit>& units)
{
    QStringList out;
    for (const ReferenceUnit& unit : units) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Sentence, unit.text);
        qsizetype from = 0;
        while (finder.toNextBoundary() >= 0) {
            const qsizetype to = finder.position();
            const QString sentence = unit.text.mid(from, to - from).trimmed();
            if (!sentence.isEmpty())
                out.append(sentence);
            from = to;
        }
    }
    return out;
}

QStringList ReferenceMapping::map(const ReferenceText& reference,
                                  const QList<double>& segmentStarts, double audioDuration)
{
    if (segmentStarts.isEmpty())
        return {};
    if (reference.isTimed())
        return mapTimed(reference.units(), segmentStarts);
    if (reference.units().size() == segmentStarts.size()) {
        QStringList texts;
        for (const ReferenceUnit& unit : reference.units())
            texts.append(unit.text);
        return texts;
    }
    return mapBySentences(sentences(reference.units()), segmentStarts, audioDuration);
}

QStringList ReferenceMapping::map(const ReferenceText& reference, const SegmentList& segments)
{
    QList<double> starts;
    starts.reserve(segments.size());
    for (const Segment& segment : segments)
        starts.append(segment.start);
    return map(reference, starts, segments.isEmpty() ? 0.0 : segments.back().end());
}
