// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

namespace zelk::zoo {

/// A process that constantly creates, fills, renames, deletes and moves the folders of `root`, and swaps them for links
/// to `canary`. It follows no links itself, so `canary` never changes. Folders are parked in `limbo`. Both are outside
/// `root`, on the same file system.
class Mutator {
public:
    Mutator(const std::string& root, const std::string& canary, const std::string& limbo, std::uint64_t seed);
    Mutator(const Mutator&) = delete;
    Mutator& operator=(const Mutator&) = delete;
    ~Mutator();

    /// The operations so far, counted by the mutator itself.
    struct Done {
        std::uint64_t created = 0;
        std::uint64_t renamed = 0;
        std::uint64_t deleted = 0;
        std::uint64_t swapped = 0;
        std::uint64_t movedAway = 0;

        std::uint64_t all() const { return created + renamed + deleted + swapped + movedAway; }
    };
    Done done() const;

    /// Blocks until it has done `count` more operations. False if it died.
    bool waitForMore(std::uint64_t count) const;

private:
    struct Shared;

    Shared* shared_;
    pid_t child_;
};

}  // namespace zelk::zoo
