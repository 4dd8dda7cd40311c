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

/// The folders of a tree that are mount points. macOS's bulk call describes the folder beneath the mount, on the device
/// of the tree; opening it would enter the mount, and block if that is a dead server's. Immutable; safe from any
/// thread.
class CoveredFolders {
public:
    using Names = std::set<std::string, std::less<>>;

    CoveredFolders() = default;
    /// Those below the folder `top` (absolute, without links) in `table`. Accesses only the parents, never the mounts.
    CoveredFolders(std::string_view top, const std::vector<Mount>& table);

    /// The mount points among the subfolders of `folder`; null if there are none.
    const Names* in(const struct stat& folder) const;

private:
    std::map<std::pair<dev_t, ino_t>, Names> names_;
};

}  // namespace zelk
