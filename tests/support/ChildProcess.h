#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

/// Answers of a check in a child process that are no answer of the check itself.
constexpr int kChildNotSupported = -1;
constexpr int kChildCrashed = -2;

/// Runs \a check in a copy of this process and answers what it gives, 0 to 255. Whatever the check does to
/// its process (limits, another user, ignored signals) ends with it.
template<typename Check>
int inChildProcess(Check check)
{
#ifdef Q_OS_UNIX
    const pid_t child = fork();
    if (child < 0)
        return kChildNotSupported;
    if (child == 0)
        _exit(check());
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        return kChildNotSupported;
    return WIFEXITED(status) ? WEXITSTATUS(status) : kChildCrashed;
#else
    Q_UNUSED(check)
    return kChildNotSupported;
#endif
}

/// Makes permissions bind: the superuser of a container reads and writes everything.
inline bool becomeNobody()
{
#ifdef Q_OS_UNIX
    constexpr unsigned kNobody = 65534;
    if (geteuid() != 0)
        return true;
    return setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
#else
    return false;
#endif
}
