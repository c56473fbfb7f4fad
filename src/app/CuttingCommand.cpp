// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CuttingCommand.h"

CuttingCommand::CuttingCommand(const QString& name, State before, State after, Apply apply,
                               Kind kind, qint64 movedIndex)
    : m_before(std::move(before)), m_after(std::move(after)), m_apply(std::move(apply)),
      m_kind(kind), m_movedIndex(movedIndex)
{
    setText(name);
}

bool CuttingCommand::mergeWith(const QUndoCommand* other)
{
    const auto* next = static_cast<const CuttingCommand*>(other);
    if (m_kind != MoveStart || next->m_movedIndex != m_movedIndex ||
        next->m_before.cutting != m_after.cutting)
        return false;
    m_after = next->m_after;
    // A start moved back to where it was is no step at all.
    if (m_after.cutting == m_before.cutting && m_after.uncertainStarts == m_before.uncertainStarts)
        setObsolete(true);
    return true;
}
