// SPDX-License-Identifier: GPL-3.0-or-later
// Saves two large transcripts in turn, for ever, the way the auto-save job
// does; the crash test kills it at random moments.
// Usage: autosave_kill_helper AUDIO FOLDER

#include "AutoSaveKillSupport.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3)
        return 2;
    const QString audio = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    for (unsigned long long round = 0;; ++round) {
        if (!AutoSaveQueue::save(killTestSnapshot(audio, folder, round % 2)))
            return 1;
        if (round == 0) {
            std::puts("saving");
            std::fflush(stdout);
        }
    }
}
