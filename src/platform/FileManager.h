// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Failure.h"
#include "platform/ItemPath.h"

namespace zelk {

/// What a path is, its own self and not a link's target.
struct FileProperties {
    bool isDirectory = false;
    std::uint64_t allocatedSize = 0;  ///< bytes on disk; 0 on a directory
};

/// Files by their paths. Paths are bytes. Blocking; safe from any thread.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Follows links, so a dangling one does not exist; nor does what lies beyond the longest path of the system.
    virtual bool exists(const std::string& path) = 0;
    virtual std::optional<FileProperties> properties(const std::string& path) = 0;
    /// The names in a directory, without "." and "..", unsorted; absent if it cannot be listed.
    virtual std::optional<std::vector<std::string>> list(const std::string& path) = 0;
    /// The bytes allocated by everything below the directory `path`, packages gone into, links not followed, what the
    /// system hides (a leading dot; on macOS also a flag) left out with all it holds, and other volumes not gone into.
    /// What cannot be read counts 0.
    virtual std::uint64_t allocatedSizeBelow(const std::string& path) = 0;

    /// The whole content; absent on any failure.
    virtual std::optional<std::string> read(const std::string& path) = 0;
    /// Replaces `path` by `content` so that at every moment, a loss of power included, the old or the new content is
    /// there, whole: temporary file beside it, checked writes, flush, rename, flush of the folder. The folder must
    /// exist. False leaves the old content and no temporary file.
    virtual bool replaceDurably(const std::string& path, std::string_view content) = 0;
    /// Creates `path` and what is missing above it. True if it is a directory afterwards.
    virtual bool createDirectories(const std::string& path) = 0;

    /// Opens `path` for reading and closes it again: 0, or the errno of the opening.
    virtual int tryOpen(const std::string& path) = 0;
    /// Removes `item` for good, a folder with everything below it, a link without looking at its target; never what is
    /// mounted below it, nor anything that was put in place of a part of the path while it works. On a failure some of
    /// it may be gone.
    virtual Failure remove(const ItemPath& item) = 0;
};

}  // namespace zelk
