// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/AutoSaveQueue.h"

// The two transcripts the kill test alternates between: 400 rows of 1 KiB,
// large enough that a kill often lands while one is being written.
inline AutoSaveQueue::Snapshot killTestSnapshot(const QString& audio, const QString& folder,
                                               int which)
{
    AutoSaveQueue::Snapshot snapshot;
    snapshot.audioPath = audio;
    snapshot.transcriptionsFolder = folder;
    for (int row = 0; row < 400; ++row) {
        snapshot.texts.append(QString(1024, which ? u'b' : u'a'));
        snapshot.starts.append(row * 1.5);
    }
    return snapshot;
}
