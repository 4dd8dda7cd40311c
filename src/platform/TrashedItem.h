// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Failure.h"
#include "platform/ItemPath.h"

namespace zelk {

/// Identifies a file or folder, whatever its path. The system may reuse the number once the file is deleted.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// What Trash::restore() needs to know of an item that was moved to the Trash. A plain value: keeps nothing open and
/// does not follow later changes of the Trash.
struct TrashedItem {
    ItemPath origin;        ///< its path before the move
    FileIdentity parent;    ///< the folder it was in
    std::string path;       ///< its path in the Trash, in bytes
    FileIdentity identity;  ///< of the item itself
    std::string info;       ///< the exact content of its info file on Linux; empty on macOS
};

/// The result of moving an item to the Trash.
struct TrashResult {
    Failure failure;
    /// Absent on failure, and if the system did not say where the item went: then it is in the Trash, but Zelk cannot
    /// restore it.
    std::optional<TrashedItem> item = std::nullopt;
};

}  // namespace zelk
