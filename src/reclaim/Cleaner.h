// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/FileManager.h"
#include "platform/Trash.h"

namespace zelk {

/// Operations without state on what can be taken away. All block; all are safe from any thread.
class Cleaner {
public:
    Cleaner() = delete;

    /// The bytes that `path` allocates: a folder's with everything below it but hidden entries; a link's own, never its
    /// target's; 0 if it cannot be looked at.
    static std::uint64_t allocatedSize(FileManager& files, const std::string& path);

    /// The bytes that the entries of the Trash allocate. A hidden entry of the Trash counts, hidden ones inside a
    /// trashed folder do not. Absent if the Trash may not be looked into.
    static std::optional<std::uint64_t> measureTrash(FileManager& files, Trash& trash);
};

}  // namespace zelk
