// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/MountTable.h"

namespace zelk {

/// What is mounted in the entries of one folder, by a table that is read for some entries in a row, and again when it
/// is a second old. What is mounted after that, or moved here with a mount in it, is not in the table. So this saves
/// from removing half of an item; what keeps a removal out of other mounts is how it opens folders.
class FolderMounts {
public:
    /// `folder` must stay open. If its path is unknown, no mount is known.
    explicit FolderMounts(int folder) : folder_(folder) {}

    /// Whether something is mounted in the entry `name`, on `mount`, by whatever path.
    bool areIn(const std::string& name, std::uint64_t mount);

private:
    const int folder_;
    std::optional<std::chrono::steady_clock::time_point> read_;
    std::optional<std::string> path_;
    std::vector<Mount> table_;
};

}  // namespace zelk
