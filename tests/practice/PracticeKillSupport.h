// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/PracticeRecord.h"

// The two records the kill test alternates between: 3000 segments each,
// large enough that a kill often lands while one is being written.
inline PracticeRecord killTestRecord(int which)
{
    PracticeRecord record;
    const QDate first(2025, 3, 1);
    for (int index = 0; index < 3000; ++index) {
        record.recordCheck(index, which ? 0.25 : 0.75, first);
        record.recordCheck(index, 0.5, first.addDays(1 + which));
        record.addTime(index, 10.0 + which);
    }
    return record;
}

inline const QString KillTestIdentity = QStringLiteral("kill-test-lesson");
