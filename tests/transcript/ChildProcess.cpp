// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChildProcess.h"

#include <QFile>
#include <cstdio>
#include <fcntl.h>
#include <linux/capability.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ChildProcess {

int run(const std::function<int()>& body)
{
    std::fflush(nullptr);
    const pid_t pid = fork();
    if (pid < 0)
        return -1;
    if (pid == 0) {
        int code = body();
        std::fflush(nullptr);
        _exit(code);
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0) {
    }
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    return 128 + (WIFSIGNALED(status) ? WTERMSIG(status) : 0);
}

bool dropPermissionOverrides()
{
    if (geteuid() != 0)
        return true;
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2] = {};
    if (syscall(SYS_capget, &header, data) != 0)
        return false;
    const unsigned dropped =
        (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH) | (1u << CAP_FOWNER);
    data[0].effective &= ~dropped;
    data[0].permitted &= ~dropped;
    return syscall(SYS_capset, &header, data) == 0;
}

namespace {

bool writeProc(const char* path, const QByteArray& text)
{
    const int fd = open(path, O_WRONLY);
    if (fd < 0)
        return false;
    const bool ok = write(fd, text.constData(), static_cast<size_t>(text.size())) == text.size();
    close(fd);
    return ok;
}

} // namespace

bool mountPrivateTmpfs(const QString& dir, const QString& options)
{
    const uid_t uid = geteuid();
    const gid_t gid = getegid();
    if (uid == 0) {
        if (unshare(CLONE_NEWNS) != 0)
            return false;
    } else {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        // Map ourselves so that files made in the tmpfs have an owner.
        writeProc("/proc/self/setgroups", "deny");
        if (!writeProc("/proc/self/uid_map",
                       QByteArray::number(uid) + ' ' + QByteArray::number(uid) + " 1") ||
            !writeProc("/proc/self/gid_map",
                       QByteArray::number(gid) + ' ' + QByteArray::number(gid) + " 1"))
            return false;
    }
    // Keep the mount out of the parent's namespace.
    if (mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return false;
    return mount("tmpfs", QFile::encodeName(dir).constData(), "tmpfs", 0,
                 options.toUtf8().constData()) == 0;
}

} // namespace ChildProcess
