// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/OpenDirectory.h"

namespace zelk {

/// The open directories from a scan root down to the current one. Each is opened relative to its parent, so neither
/// long paths nor swapped components matter. In a deep chain only the lowest `maximumOpen` stay open; the others are
/// reopened through ".." on the way back, if they are still the same directories. Used by one thread; owns its
/// descriptors.
class DirectoryLadder {
public:
    /// Keeps eight threads and more within the usual limits of 256 (macOS) or 1024 (Linux) descriptors per process.
    static constexpr std::size_t maximumOpen = 16;

    /// Opens the directory `name` in `parent`; -1 with errno set on failure.
    using Opener = int (*)(int parent, std::string_view name);

    explicit DirectoryLadder(Opener opener = openSubdirectory) : opener_(opener) {}
    DirectoryLadder(const DirectoryLadder&) = delete;
    DirectoryLadder& operator=(const DirectoryLadder&) = delete;
    ~DirectoryLadder() { clear(); }

    /// Moves to `below` under `rootFd` (not owned). False if it cannot be opened.
    bool open(int rootFd, const std::string& below);
    /// Moves to `directory` and takes ownership; -1 stands for one that could not be opened.
    bool start(int directory);
    /// Goes down one level, even if it returns false with errno set.
    bool descend(std::string_view name);
    /// Goes up one level. False if there is no current directory now, as when the parent was not found again.
    bool ascend();
    /// The current directory, owned by the ladder; -1 if it could not be opened.
    int current() const { return rungs_.empty() ? -1 : rungs_.back().fd; }
    /// The directory on `level`, counted from 0 at the start; -1 if it is closed or could not be opened.
    int at(std::size_t level) const { return rungs_.at(level).fd; }
    /// The highest level that may be open; those above it are closed.
    std::size_t highestOpen() const { return firstOpen_; }

private:
    struct Rung {
        int fd = -1;
        bool set = false;  ///< closed to save descriptors; `device` and `inode` identify it
        dev_t device = 0;
        ino_t inode = 0;
    };

    void clear();
    bool push(int fd);
    void setOldestAside();

    Opener opener_;
    std::vector<Rung> rungs_;
    std::size_t firstOpen_ = 0;  ///< rungs below this index are closed or were never opened
};

}  // namespace zelk
