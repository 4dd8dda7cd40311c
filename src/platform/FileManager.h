// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Failure.h"
#include "platform/ItemPath.h"

namespace zelk {

/// Properties of the entry at a path; of a link, not of its target.
struct FileProperties {
    bool isDirectory = false;
    std::uint64_t allocatedSize = 0;  ///< bytes on disk; 0 on a directory
    bool isLink = false;              ///< a symbolic link
    bool isOwn = false;               ///< it belongs to the user who runs this process
};

/// File operations by path. Paths are bytes. Blocking; safe from any thread.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Follows links, so a dangling link does not exist; nor does a path longer than the system's limit.
    virtual bool exists(const std::string& path) = 0;
    virtual std::optional<FileProperties> properties(const std::string& path) = 0;
    /// The names in a directory, without "." and "..", unsorted; absent if it cannot be listed.
    virtual std::optional<std::vector<std::string>> list(const std::string& path) = 0;
    /// The bytes allocated below the directory `path`. Enters packages; does not follow links, enter other volumes or
    /// count hidden entries (leading dot; on macOS also the hidden flag). Unreadable folders count 0.
    virtual std::uint64_t allocatedSizeBelow(const std::string& path) = 0;
    /// The same with hidden entries.
    virtual std::uint64_t fullSizeBelow(const std::string& path) = 0;
    /// The path of an existing entry without links in it; absent if it leads nowhere.
    virtual std::optional<std::string> realPath(const std::string& path) = 0;

    /// The text of the symbolic link at `path`, which need not lead anywhere; absent if that is no link.
    virtual std::optional<std::string> linkTarget(const std::string& path) = 0;
    /// Whether another process holds a lock on the file at `path`, as programs do that tell others that they are
    /// running. Never blocks and takes no lock; false if the file cannot be read.
    virtual bool isLocked(const std::string& path) = 0;

    /// The whole content of a file; absent on any failure.
    virtual std::optional<std::string> read(const std::string& path) = 0;
    /// The same for a file of at most `most` bytes; absent for a larger one, which takes no memory.
    virtual std::optional<std::string> readSmall(const std::string& path, std::size_t most) = 0;
    /// The first `most` bytes of a file, fewer if it has no more; absent on any failure.
    virtual std::optional<std::string> readStart(const std::string& path, std::size_t most) = 0;
    /// Atomically and durably replaces `path` by `content`: after a crash or power loss either the old or the new
    /// content is there, whole. Writes a temporary file beside it, flushes, renames and flushes the folder, which must
    /// exist. On false the old content is in place and no temporary file is left.
    virtual bool replaceDurably(const std::string& path, std::string_view content) = 0;
    /// Creates `path` and its missing parents. True if `path` is a directory afterwards.
    virtual bool createDirectories(const std::string& path) = 0;

    /// Opens `path` for reading and closes it again. Returns 0 or the errno of open.
    virtual int tryOpen(const std::string& path) = 0;
    /// Deletes `item` permanently: a folder with its contents, a link without touching its target. Never deletes what
    /// is mounted below it, or what is swapped into the path meanwhile. After a failure, part of it may be gone.
    virtual Failure remove(const ItemPath& item) = 0;
};

}  // namespace zelk
