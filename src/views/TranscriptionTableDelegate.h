// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

// The session controller's side of the dictation table: told which segment the
// learner selected. It is the only call the table makes.
class TranscriptionTableDelegate
{
public:
    virtual ~TranscriptionTableDelegate() = default;
    // The selected row, or -1 when the selection was cleared.
    virtual void didSelectSegmentAtIndex(qint64 index) = 0;
};
