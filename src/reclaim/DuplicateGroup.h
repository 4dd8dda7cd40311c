// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileContents.h"
#include "platform/ItemPath.h"

namespace zelk {

/// A file as the search for duplicates has read it: what must still be true of it before it, or a copy of it, is moved.
struct HashedFile {
    ItemPath item;
    FileStamp stamp;  ///< when it was opened
    /// It was read to its end and did not change meanwhile, so the hash is that of its content.
    bool whole = false;
    /// It had not changed for a while before it was read, so a later change shows in its stamp. Otherwise only reading
    /// it again shows one.
    bool settled = false;

    bool operator==(const HashedFile&) const = default;
};

/// A set of files with the same content.
struct DuplicateGroup {
    std::string hash;                ///< lower-case SHA-256, "-" and the size: identifies the group
    std::int64_t size = 0;           ///< of each file, in bytes, as the folder lists it
    std::vector<std::string> paths;  ///< in bytes, at least two, in the order in which they were read
    std::vector<HashedFile> files;   ///< the same files in the same order

    bool operator==(const DuplicateGroup&) const = default;

    /// What is gained if all files but one go.
    std::int64_t recoverable() const { return size * (static_cast<std::int64_t>(paths.size()) - 1); }
    std::string_view digest() const { return std::string_view(hash).substr(0, hash.find('-')); }
};

}  // namespace zelk
