// SPDX-License-Identifier: MIT
// Access to the file system for a scan: opening and listing directories, nothing else.
//
// A DirectoryRoot is a scan root kept open for the whole scan. A DirectoryReader belongs to one thread and has one
// current directory, which open(), descend() and ascend() change. No step follows a symbolic link below the root, so a
// tree that changes during a walk cannot lead outside. (A folder that is moved away while a reader is in it is read to
// its end where it is.)
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SharedWork.h"
#include "platform/Time.h"
#include "platform/UnfilledAllocator.h"

namespace zelk {

/// The object type of a directory, in macOS's numbering (vnode types), to which the Linux reader maps its own. It is
/// the only type that a scan distinguishes; links, sockets, pipes and devices count as files.
inline constexpr std::uint32_t directoryObjectType = 2;

/// One directory entry. Describes a link itself, never its target.
struct DirEntry {
    std::string_view name;    ///< bytes, not text: may be any but '/' and NUL. Valid until the reader's next step.
    std::uint32_t objType;    ///< vnode type; 2 is a directory
    std::uint64_t fileID;     ///< inode number
    std::uint32_t linkCount;  ///< hard links; 0 on a directory
    std::uint64_t allocSize;  ///< bytes allocated on disk, not the length; 0 on a directory
    std::int32_t deviceID;    ///< device of the entry; differs from the root's on a mount point. A btrfs
                              ///< subvolume that is not mounted separately has its root's.
    TimePoint modTime;
};

/// What is known about a root before it is opened, links followed.
struct RootStatus {
    std::int32_t device;
    TimePoint modified;  ///< whole seconds
};

/// A scan root that is kept open. Immutable; shared by the threads of one scan.
class DirectoryRoot {
public:
    virtual ~DirectoryRoot() = default;
};

/// Reads directories for one thread and reuses its buffers. Not thread-safe.
///
/// Every step that reads returns all entries (without "." and "..", in order of delivery) or nullptr. An empty list is
/// an empty directory; nullptr means that the directory could not be read completely. The reader owns the list, which
/// is valid until its next step.
class DirectoryReader {
public:
    using Entries = std::vector<DirEntry, UnfilledAllocator<DirEntry>>;

    virtual ~DirectoryReader() = default;

    /// Makes `below` the current directory: a path relative to `root` with single slashes and none at either end, of
    /// any length; "" is the root itself.
    virtual const Entries* open(const DirectoryRoot& root, const std::string& below) = 0;

    /// Enters the subdirectory `name`. This goes down one level even if it returns nullptr: pair every descend() with
    /// one ascend().
    virtual const Entries* descend(std::string_view name) = 0;

    /// Returns to the parent directory without listing it again. False if there is no current directory now: above the
    /// one that was opened last, or where the way back is lost because the tree changed. Every descend() then returns
    /// nullptr until open() finds a place by its path.
    virtual bool ascend() = 0;

    /// Lets the steps that read share a large directory with `helpers`, which must stay until nullptr, or another,
    /// takes their place; at first there are none. What a step returns is the same with them, except nullptr once they
    /// are cancelled. A reader that gets everything about an entry along with its name has nothing to share, and
    /// ignores them.
    virtual void setHelpers(Helpers* /*helpers*/) {}

    /// How often the calling thread, to which the reader belongs, has slept since it began, be it for the disk or for
    /// another thread; always 0 where that cannot be found out.
    virtual std::int64_t timesSlept() const { return 0; }
};

/// Creates roots and readers. Safe from any thread.
class DirectoryService {
public:
    virtual ~DirectoryService() = default;
    /// Follows links; absent if `path` does not exist or has no readable status.
    virtual std::optional<RootStatus> status(const std::string& path) = 0;
    /// Follows links; nullptr if `path` is not a directory or cannot be opened.
    virtual std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) = 0;
    virtual std::unique_ptr<DirectoryReader> makeReader() = 0;
    /// How many readers may work concurrently, at least 1. With more, the process would run out of descriptors and
    /// folders would wrongly appear unreadable.
    virtual std::int64_t maximumReaders() { return std::numeric_limits<std::int64_t>::max(); }
};

}  // namespace zelk
