// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transcript/LessonCutting.h"

#include <QUndoCommand>
#include <functional>
#include <optional>

// One step on the session's undo stack: the lesson's cutting and rows before
// and after an edit (split, merge, a moved start, clear, import). Redo puts
// `after` in place, undo `before`, each with the segment that was current.
class CuttingCommand : public QUndoCommand
{
public:
    struct State
    {
        LessonCutting cutting;
        qint64 current = 0;
        // Where the caret goes in the current row; its end when unset.
        std::optional<qsizetype> caret;
        // The segment starts, in seconds, that came from a sentence whose
        // start is uncertain and were not moved since.
        QList<double> uncertainStarts;
    };
    using Apply = std::function<void(const State&)>;

    // Consecutive moves of one start are one step (nudges, a drag in stages).
    enum Kind
    {
        Other = -1,
        MoveStart = 1
    };

    CuttingCommand(const QString& name, State before, State after, Apply apply,
                   Kind kind = Other, qint64 movedIndex = -1);

    void redo() override { m_apply(m_after); }
    void undo() override { m_apply(m_before); }
    int id() const override { return m_kind; }
    bool mergeWith(const QUndoCommand* other) override;

private:
    State m_before;
    State m_after;
    Apply m_apply;
    Kind m_kind;
    qint64 m_movedIndex;
};
