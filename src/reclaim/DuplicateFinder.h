// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/DuplicateGroup.h"
#include "scan/CancelFlag.h"

namespace zelk {

/// How far a search for duplicates is. Both are 0 while files are still being looked for.
struct HashProgress {
    std::int64_t hashed = 0;  ///< bytes
    std::int64_t toHash = 0;  ///< bytes

    bool operator==(const HashProgress&) const = default;
};

/// Finds files of the same content. Decides by whole-file hashes alone, so a hard link to a file is a copy of it.
class DuplicateFinder {
public:
    /// Smaller files are not worth the time to read them, in bytes.
    static constexpr std::int64_t usualMinimum = 2'000'000;

    /// What a search in the application needs of `platform`, which must outlive it.
    explicit DuplicateFinder(const Platform& platform);

    /// Called with the progress after each chunk, on the searching thread. May be empty.
    std::function<void(const HashProgress&)> progress;
    /// Called between the search for files and their hashing; for measuring. May be empty.
    std::function<void()> listed;
    /// Once set, the search returns early, with nothing. May be null.
    std::shared_ptr<const CancelFlag> abandoned;
    /// Off only to measure what it is worth.
    bool readsAhead = true;

    /// Searches below `roots` for files of at least `minimumSize` bytes. Blocks, and reads every file whose size occurs
    /// more than once to its end. What cannot be read is left out. The sets from which most can be recovered come
    /// first, of several equal ones those of larger files, and of these the one read first. A folder that is reached in
    /// several ways is entered once, so that one file under two paths is never mistaken for two.
    std::vector<DuplicateGroup> find(const std::vector<std::string>& roots, std::int64_t minimumSize) const;
    /// The paths of the files that find() would read, in this order.
    std::vector<std::string> candidates(const std::vector<std::string>& roots, std::int64_t minimumSize) const;

private:
    struct Candidates;
    class Folders;

    bool isAbandoned() const { return abandoned != nullptr && abandoned->isSet(); }
    Candidates list(const std::vector<std::string>& roots, std::int64_t minimumSize) const;
    std::vector<DuplicateGroup> hash(const Candidates& candidates) const;

    FileContents& contents_;
    Clock& clock_;
    TrashPlaces trash_;
    std::string droppedFolder_;  ///< with a slash at its end; empty if there is none
};

}  // namespace zelk
