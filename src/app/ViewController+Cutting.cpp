// SPDX-License-Identifier: GPL-3.0-or-later
// Fixing the cutting by hand: a segment split at the play head, two merged, a
// start moved, each one step on the undo stack with the rows it carried.

#include "app/CuttingCommand.h"
#include "app/ViewController.h"
#include "audio/AudioManager.h"
#include "audio/AudioPlayer.h"
#include "common/Clock.h"
#include "common/Log.h"
#include "localization/LocalizedString.h"
#include "localization/LocalizedTexts.h"
#include "localization/SentenceCutTexts.h"
#include "views/TranscriptionTableView.h"
#include "views/WaveformView.h"

#include <QPointer>
#include <QStatusBar>
#include <QUndoStack>
#include <algorithm>

namespace {
// How far the keyboard moves a start: five analysis frames.
constexpr double kNudge = 0.1;
} // namespace

bool ViewController::canEditCutting() const
{
    // The rows and the engine's segments must be one list: not while an
    // analysis rewrites the engine, nor while a found dictation is offered.
    return !isProcessing() && m_segmentsShown > 0 && !m_foundDictationSheet &&
           m_engine.numberOfSegments() == m_table->mutableTranscriptions().size();
}

LessonCutting ViewController::currentCutting() const
{
    return LessonCutting{m_engine.segments(), m_table->mutableTranscriptions()};
}

namespace {

// The starts of `uncertain` that still begin a segment: a start an edit moved
// or took away was looked at by the learner.
QList<double> startsStillThere(const QList<double>& uncertain, const SegmentList& segments)
{
    QList<double> kept;
    for (double start : uncertain) {
        const qsizetype index = CuttingEdits::segmentAt(segments, start);
        if (index >= 0 && segments[index].start == start)
            kept.append(start);
    }
    return kept;
}

} // namespace

void ViewController::pushCuttingEdit(const char* name, LessonCutting after, qint64 current,
                                     std::optional<qsizetype> caret, int kind, qint64 movedIndex)
{
    QList<double> uncertain = startsStillThere(m_uncertainStarts, after.segments);
    pushCuttingState(name, {std::move(after), current, caret, std::move(uncertain)}, kind,
                     movedIndex);
}

void ViewController::pushCuttingState(const char* name, CuttingCommand::State next, int kind,
                                      qint64 movedIndex)
{
    CuttingCommand::State before{currentCutting(), m_currentSegmentIndex, m_table->editingCaret(),
                                 m_uncertainStarts};
    QPointer<ViewController> self(this);
    const QString lesson = m_currentAudioPath;
    auto apply = [self, lesson](const CuttingCommand::State& state) {
        // The stack is emptied when another lesson opens; this is a guard.
        ViewController* session = self.data();
        if (session != nullptr && session->m_currentAudioPath == lesson)
            session->applyCutting(state);
    };
    m_cuttingEdits->push(new CuttingCommand(LocalizedString(name), std::move(before),
                                            std::move(next), std::move(apply),
                                            CuttingCommand::Kind(kind), movedIndex));
}

void ViewController::applyCutting(const CuttingCommand::State& state)
{
    const LessonCutting& cutting = state.cutting;
    const SegmentList before = m_engine.segments();
    const bool sameSegments = before == cutting.segments;
    if (!m_engine.updateSegments(cutting.segments)) {
        qCWarning(lcApp, "The engine refused an edited cutting of %lld segments",
                  qlonglong(cutting.segments.size()));
        return;
    }
    const qint64 current = qBound<qint64>(0, state.current, cutting.segments.size() - 1);
    m_currentSegmentIndex = current;
    m_engine.setCurrentSegmentIndex(current);
    m_table->replaceTranscriptions(cutting.texts, current, state.caret);
    m_waveformView->updateWithSegments(cutting.segments);
    m_waveformView->setCurrentSegment(current);
    m_uncertainStarts = state.uncertainStarts;
    showUncertainStarts();
    setSegmentsShown(cutting.segments.size());
    updateStatusBar();
    // The check's marks and each row's part of the reference follow the segments.
    if (m_reference)
        setReference(m_reference);
    // A repeat switch waiting for the end of the current segment waits for its new end.
    if (m_playbackTimer && m_playbackTimer->isValid() && m_engine.isPlaying())
        armRepeatSwitchEnd();
    // The journal keeps rows by their number. Rows of the same segments are
    // journaled so that a replay cannot bring back what they replaced; after
    // new segments, the save that follows at once is what keeps them, as a
    // replay over the old cutting would put texts on the wrong segments.
    if (sameSegments)
        journalAllRows();
    autoSaveTranscription(true);
    // What was practised stays with its sentence.
    if (!sameSegments && !m_practice.isEmpty()) {
        m_practice = m_practice.remapped(CuttingEdits::carriedTo(before, cutting.segments));
        practiceChanged();
    }
}

void ViewController::clearAllRows()
{
    // One step that can be undone; the segments stay.
    LessonCutting cleared{m_engine.segments(), {}};
    cleared.texts.reserve(cleared.segments.size());
    for (qsizetype i = 0; i < cleared.segments.size(); ++i)
        cleared.texts.append(QString());
    pushCuttingEdit(Texts::EditClear, std::move(cleared), m_currentSegmentIndex, std::nullopt);
}

double ViewController::playHeadPosition() const
{
    const AudioPlayer* player = m_engine.audioPlayer();
    if (player)
        return player->currentTime();
    const SegmentList& segments = m_engine.segments();
    return m_currentSegmentIndex >= 0 && m_currentSegmentIndex < segments.size()
               ? segments[m_currentSegmentIndex].start
               : 0.0;
}

void ViewController::splitSegmentAtPlayHead()
{
    if (!canEditCutting())
        return;
    const LessonCutting cutting = currentCutting();
    const double at = playHeadPosition();
    const qsizetype index = CuttingEdits::segmentAt(cutting.segments, at);
    // The caret counts only in the row being split.
    const std::optional<qsizetype> caret =
        index == m_table->currentIndex() ? m_table->editingCaret() : std::nullopt;
    std::optional<LessonCutting> after = CuttingEdits::split(cutting, index, at, caret);
    if (!after) {
        qCInfo(lcApp, "No split at %.3f s: a part would be shorter than %.1f s", at,
               CuttingEdits::kShortestPart);
        m_statusBar->showMessage(LocalizedString(Texts::SplitRefused), 5000);
        return;
    }
    qCInfo(lcApp, "Split segment %lld at %.3f s", qlonglong(index), at);
    // The play head is in the second part: it becomes the current segment,
    // and the sound goes on where it was.
    pushCuttingEdit(Texts::EditSplit, std::move(*after), index + 1, 0);
}

void ViewController::mergeWithNextSegment()
{
    if (!canEditCutting())
        return;
    const qint64 index = m_currentSegmentIndex;
    std::optional<LessonCutting> after = CuttingEdits::mergeWithNext(currentCutting(), index);
    if (!after)
        return;
    // The caret stays where the first row's text ended.
    const qsizetype caret = m_table->mutableTranscriptions().value(index).size();
    pushCuttingEdit(Texts::EditMerge, std::move(*after), index, caret);
}

void ViewController::moveSegmentStart(qint64 index, double seconds)
{
    if (!canEditCutting())
        return;
    std::optional<LessonCutting> after = CuttingEdits::moveStart(currentCutting(), index, seconds);
    if (!after)
        return;
    pushCuttingEdit(Texts::EditMove, std::move(*after), m_currentSegmentIndex,
                    m_table->editingCaret(), CuttingCommand::MoveStart, index);
}

void ViewController::nudgeCurrentSegmentStart(int direction)
{
    if (!canEditCutting() || m_currentSegmentIndex <= 0)
        return;
    const double start = m_engine.segments()[m_currentSegmentIndex].start;
    moveSegmentStart(m_currentSegmentIndex, start + direction * kNudge);
}

void ViewController::undoCuttingEdit()
{
    if (canEditCutting() && m_cuttingEdits->canUndo())
        m_cuttingEdits->undo();
}

void ViewController::redoCuttingEdit()
{
    if (canEditCutting() && m_cuttingEdits->canRedo())
        m_cuttingEdits->redo();
}

bool ViewController::canCutAtSentences() const
{
    return m_segmentsShown > 0 && m_reference && m_reference->isTimed();
}

void ViewController::cutSegmentsAtSentences()
{
    if (!canEditCutting() || !canCutAtSentences())
        return;
    const QList<ReferenceUnit>& units = m_reference->units();
    QList<double> starts;
    starts.reserve(units.size());
    for (const ReferenceUnit& unit : units)
        starts.append(*unit.start);
    const LessonCutting before = currentCutting();
    QList<qsizetype> from;
    std::optional<LessonCutting> after = CuttingEdits::cutAt(before, starts, &from);
    if (!after)
        return;
    // The first segment's start is the recording's, not a sentence's.
    QList<double> uncertain;
    for (qsizetype i = 1; i < from.size(); ++i) {
        if (units[from[i]].uncertain)
            uncertain.append(after->segments[i].start);
    }
    const qsizetype count = after->segments.size();
    qCInfo(lcApp, "Cut at %lld sentences: %lld segments, %lld starts uncertain",
           qlonglong(units.size()), qlonglong(count), qlonglong(uncertain.size()));
    if (*after != before || uncertain != m_uncertainStarts) {
        // The sentence being listened to stays current.
        const qint64 current =
            std::max<qint64>(0, CuttingEdits::segmentAt(after->segments, playHeadPosition()));
        pushCuttingState(Texts::EditCutAtSentences,
                         {std::move(*after), current, std::nullopt, std::move(uncertain)});
    }
    m_statusBar->showMessage(
        stringWithFormat(LocalizedString(Texts::SegmentsNow), {QString::number(count)}), 5000);
}

void ViewController::showUncertainStarts()
{
    const SegmentList& segments = m_engine.segments();
    QSet<qint64> indices;
    QList<qint64> numbers;
    for (double start : std::as_const(m_uncertainStarts)) {
        const qsizetype index = CuttingEdits::segmentAt(segments, start);
        if (index > 0 && segments[index].start == start) {
            indices.insert(index);
            numbers.append(index + 1);
        }
    }
    m_waveformView->setUncertainStarts(indices);
    // What the colour says, for a screen reader.
    std::sort(numbers.begin(), numbers.end());
    QStringList list;
    for (qint64 number : std::as_const(numbers))
        list.append(QString::number(number));
    m_waveformView->setAccessibleDescription(
        list.isEmpty() ? QString()
                       : stringWithFormat(LocalizedString(Texts::UncertainStarts),
                                          {list.join(QStringLiteral(", "))}));
}
