#pragma once

// Root may do everything, and tests are often run by root.

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace mirtane::fake {

constexpr unsigned nobody = 65534;

inline bool isRoot()
{
    return geteuid() == 0;
}

// What it answers in a process of its own, which is nobody's where this one is root's.
template <class Do> bool asNobody(Do what)
{
    const pid_t child = fork();
    if (child == 0) {
        const bool dropped =
            !isRoot() || (setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0);
        constexpr int notDropped = 2;
        _exit(dropped ? (what() ? 0 : 1) : notDropped);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace mirtane::fake
