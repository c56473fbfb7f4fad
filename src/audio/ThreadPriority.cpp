// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/ThreadPriority.h"

#include "common/Log.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <cerrno>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ThreadPriority {

namespace {

int raise(id_t tid)
{
    for (const int nice : {-10, -5, -1}) {
        if (::setpriority(PRIO_PROCESS, tid, nice) == 0) {
            qCDebug(lcAudio, "Sound thread %d runs at nice %d", int(tid), nice);
            return nice;
        }
    }
    errno = 0;
    const int now = ::getpriority(PRIO_PROCESS, tid);
    qCDebug(lcAudio, "Sound thread %d keeps nice %d", int(tid), now);
    return now;
}

} // namespace

int raiseForSound()
{
    // On Linux each thread has its own nice value, set through its id.
    return raise(static_cast<id_t>(::syscall(SYS_gettid)));
}

void raiseThreadsNamed(const char* name)
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString& entry : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile comm(tasks.filePath(entry + QStringLiteral("/comm")));
        if (comm.open(QIODevice::ReadOnly) && comm.readAll().trimmed() == QByteArray(name))
            raise(static_cast<id_t>(entry.toInt()));
    }
}

} // namespace ThreadPriority
