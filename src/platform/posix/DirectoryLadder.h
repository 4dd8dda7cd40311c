// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/OpenDirectory.h"

namespace zelk {

/// The open directories between a scan root and where a reader stands: each is opened relative to the one above, so
/// that neither the length of a path nor a swapped component matters. Of a very deep chain only the lowest
/// `maximumOpen` are kept open; the others are found again through ".." on the way back, and taken only if they are
/// still the same directory. One thread; owns its descriptors.
class DirectoryLadder {
public:
    /// Below the usual limit of 256 (macOS) or 1024 (Linux) descriptors a process, with eight threads and more.
    static constexpr std::size_t maximumOpen = 16;

    /// How one level down is opened: the directory `name` in `parent`, -1 with errno set on a failure.
    using Opener = int (*)(int parent, std::string_view name);

    explicit DirectoryLadder(Opener opener = openSubdirectory) : opener_(opener) {}
    DirectoryLadder(const DirectoryLadder&) = delete;
    DirectoryLadder& operator=(const DirectoryLadder&) = delete;
    ~DirectoryLadder() { clear(); }

    /// Leaves everything and stands at `below` under `rootFd` (not owned). False if it could not be opened.
    bool open(int rootFd, const std::string& below);
    /// Leaves everything and stands at `directory`, which it takes over; -1 is one that could not be opened.
    bool start(int directory);
    /// One level down; also when it gives false, with errno set, it has gone down.
    bool descend(std::string_view name);
    /// One level up. False if it stands nowhere now, as where the directory above was not found again.
    bool ascend();
    /// The descriptor where it stands, owned by the ladder; -1 where it could not be opened.
    int current() const { return rungs_.empty() ? -1 : rungs_.back().fd; }

private:
    struct Rung {
        int fd = -1;
        bool set = false;  ///< closed to save descriptors: `device` and `inode` tell it again
        dev_t device = 0;
        ino_t inode = 0;
    };

    void clear();
    bool push(int fd);
    void setOldestAside();

    Opener opener_;
    std::vector<Rung> rungs_;
    std::size_t firstOpen_ = 0;  ///< rungs below this index are closed or were never open
};

}  // namespace zelk
