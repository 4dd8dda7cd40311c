// SPDX-License-Identifier: MIT
// How a survey meets the file system: directories are opened and listed, and nothing else is asked of it.
//
// A DirectoryRoot is a scan root held open for the length of a scan. A DirectoryReader belongs to one thread; it stands
// at one directory at a time, and goes to another with open(), descend() and ascend(). No step ever follows a symbolic
// link below the root, so a tree that is changed under a walk cannot lead it outside. (A folder that is
// moved away while a reader stands in it is read to its end where it is.)
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Time.h"

namespace zelk {

/// The object type of a directory, in macOS's own numbering (vnode types), which the Linux reader maps to. It is the
/// only type that a scan tells apart; links, sockets, pipes and devices are files to it.
inline constexpr std::uint32_t directoryObjectType = 2;

/// One entry of a directory, as it is delivered, never a link's target.
struct DirEntry {
    std::string_view name;    ///< bytes, not text: may be any but '/' and NUL. Valid until the reader's next step.
    std::uint32_t objType;    ///< vnode type; 2 is a directory
    std::uint64_t fileID;     ///< inode number
    std::uint32_t linkCount;  ///< hard links; 0 on a directory
    std::uint64_t allocSize;  ///< bytes allocated on disk, not the length; 0 on a directory
    std::int32_t deviceID;    ///< the device that the entry lies on: a mount point has another one than its root. A
                              ///< folder that is a volume of its own without a mount (btrfs) has its root's.
    TimePoint modTime;
};

/// What is known of a root before it is opened, its links followed.
struct RootStatus {
    std::int32_t device;
    TimePoint modified;  ///< whole seconds
};

/// A scan root held open. Shared by the threads of one scan; immutable.
class DirectoryRoot {
public:
    virtual ~DirectoryRoot() = default;
};

/// Reads directories for one thread and reuses its memory from one to the next. Not thread-safe.
///
/// Every step that reads gives all entries ("." and ".." left out, in the order of delivery) or nullptr. An empty list
/// is an empty directory; nullptr is one that could not be read, wholly or in part. The list is owned by the reader and
/// valid until its next step.
class DirectoryReader {
public:
    using Entries = std::vector<DirEntry>;

    virtual ~DirectoryReader() = default;

    /// Leaves wherever it stood and stands at `below`, a path relative to `root` with single slashes and none at either
    /// end; "" is the root itself. Its length has no limit.
    virtual const Entries* open(const DirectoryRoot& root, const std::string& below) = 0;

    /// Stands at the subdirectory `name` of where it stands. Also when this gives nullptr it has gone down a level:
    /// every descend() is paired with one ascend().
    virtual const Entries* descend(std::string_view name) = 0;

    /// Back to the directory above. It is not listed again. False if it stands nowhere now: above what was opened last,
    /// or deep in a tree that was changed meanwhile, the way back may be lost. Then every descend() gives nullptr until
    /// open() finds the place again by its path.
    virtual bool ascend() = 0;
};

/// Makes roots and readers. Safe from any thread.
class DirectoryService {
public:
    virtual ~DirectoryService() = default;
    /// Follows links; absent if there is nothing at `path` or it cannot be looked at.
    virtual std::optional<RootStatus> status(const std::string& path) = 0;
    /// Follows links; nullptr if `path` is not a directory or cannot be opened.
    virtual std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) = 0;
    virtual std::unique_ptr<DirectoryReader> makeReader() = 0;
    /// How many readers may be at work at the same time, 1 or more. With others beside them the process would run out
    /// of descriptors, and folders would be found unreadable for no fault of theirs.
    virtual std::int64_t maximumReaders() { return std::numeric_limits<std::int64_t>::max(); }
};

}  // namespace zelk
