// SPDX-License-Identifier: MIT
#pragma once

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

namespace zelk::fakes {

/// Runs `check` in a child process, where it may change process-wide state, and returns its result; false also if the
/// child died.
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

inline constexpr unsigned ordinaryUser = 65534;  ///< "nobody", which asOrdinaryUser() switches to from root

/// Like inChild(), as a user who is bound by permissions: root switches to "nobody".
template <class Check>
bool asOrdinaryUser(Check check) {
    return inChild([&] {
        if (::geteuid() == 0 &&
            (::setgroups(0, nullptr) != 0 || ::setgid(ordinaryUser) != 0 || ::setuid(ordinaryUser) != 0)) {
            return false;
        }
        return check();
    });
}

/// Gives `path` and everything below it to the user of asOrdinaryUser().
inline void giveToOrdinaryUser(const std::string& path) {
    if (::geteuid() != 0) return;
    const auto give = [](const std::string& entry) {
        if (::lchown(entry.c_str(), ordinaryUser, ordinaryUser) != 0)
            throw std::system_error(errno, std::generic_category(), entry);
    };
    give(path);
    if (!std::filesystem::is_directory(std::filesystem::symlink_status(path))) return;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) give(entry.path().string());
}

}  // namespace zelk::fakes
