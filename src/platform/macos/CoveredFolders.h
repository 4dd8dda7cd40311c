// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/posix/MountTable.h"

namespace zelk {

/// The folders of a tree that something is mounted on. macOS's bulk call shows such a folder as it is beneath the
/// mount, on the device of the tree; to open it is to go into the mount, and to wait where that is a dead server's.
/// Immutable; safe from any thread.
class CoveredFolders {
public:
    using Names = std::set<std::string, std::less<>>;

    CoveredFolders() = default;
    /// Those below the folder `top` (absolute, without links) by the table of the moment. Nothing that is mounted is
    /// touched: only the folders above are looked at.
    CoveredFolders(std::string_view top, const std::vector<Mount>& table);

    /// The covered ones among the subfolders of `folder`; null if there are none.
    const Names* in(const struct stat& folder) const;

private:
    std::map<std::pair<dev_t, ino_t>, Names> names_;
};

}  // namespace zelk
