// SPDX-License-Identifier: MIT
#pragma once

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace zelk::fakes {

/// Runs `check` in a child process, where it may change what belongs to a whole process, and gives its answer. False
/// also if the child died.
template <class Check>
bool inChild(Check check) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(check() ? 0 : 1);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// The same as a user whom permissions bind: the superuser passes all of them, so root becomes "nobody" for it.
template <class Check>
bool asOrdinaryUser(Check check) {
    return inChild([&] {
        constexpr unsigned nobody = 65534;
        if (::geteuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0)) {
            return false;
        }
        return check();
    });
}

}  // namespace zelk::fakes
