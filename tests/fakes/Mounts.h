// SPDX-License-Identifier: MIT
#pragma once

#ifdef __linux__

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

namespace zelk::fakes {

/// Mounts in a private namespace, unmounted with this object and in any case with the process. Create it before the
/// process starts threads.
class Mounts {
public:
    /// False if mounting is not permitted. Unprivileged users get a user namespace too, in which they are still
    /// themselves, or root if `asRoot` is set.
    bool allowed(bool asRoot = false) {
        const std::string user = std::to_string(::geteuid());
        const std::string group = std::to_string(::getegid());
        if (::unshare(CLONE_NEWNS) != 0) {
            if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
            std::ofstream("/proc/self/setgroups") << "deny";
            std::ofstream("/proc/self/uid_map") << (asRoot ? "0" : user) << " " << user << " 1";
            std::ofstream("/proc/self/gid_map") << (asRoot ? "0" : group) << " " << group << " 1";
        }
        return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    }

    ~Mounts() {
        for (; !places_.empty(); places_.pop_back()) ::umount2(places_.back().c_str(), MNT_DETACH);
    }

    /// Mounts a new tmpfs at `place`, which is created.
    void memory(const std::string& place, const std::string& options = "size=16m,mode=0755") {
        std::filesystem::create_directories(place);
        mounted(::mount("tmpfs", place.c_str(), "tmpfs", 0, options.c_str()), place);
    }

    /// Bind-mounts `source` at `place`, which must exist.
    void again(const std::string& source, const std::string& place) {
        mounted(::mount(source.c_str(), place.c_str(), nullptr, MS_BIND, nullptr), place);
    }

private:
    void mounted(int result, const std::string& place) {
        if (result != 0) throw std::system_error(errno, std::generic_category(), "mounting at " + place);
        places_.push_back(place);
    }

    std::vector<std::string> places_;
};

}  // namespace zelk::fakes

#endif
