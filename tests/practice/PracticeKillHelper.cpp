// SPDX-License-Identifier: GPL-3.0-or-later
// Saves two large practice records in turn, for ever; the crash test kills it
// at random moments.
// Usage: practice_kill_helper DOCUMENTS_FOLDER

#include "PracticeKillSupport.h"
#include "practice/PracticeStore.h"
#include "transcript/DocumentManager.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2)
        return 2;
    const DocumentManager documents(QString::fromLocal8Bit(argv[1]));
    const PracticeStore store(documents);
    const PracticeRecord records[] = {killTestRecord(0), killTestRecord(1)};
    for (unsigned long long round = 0;; ++round) {
        if (!store.save(KillTestIdentity, records[round % 2]))
            return 1;
        if (round == 0) {
            std::puts("saving");
            std::fflush(stdout);
        }
    }
}
