// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "scan/FSNode.h"

namespace zelk {

/// The part of `path` relative to a scan root: empty for the root itself, absent if `path` is not in it.
std::optional<std::string_view> behindRoot(std::string_view root, std::string_view path);

/// Finds the folders at these paths below `top`, parents before children. A path may yield several folders if scan
/// roots are nested. Each level on the way is indexed once, so a lookup does not depend on the number of siblings.
/// Reads only names and children.
std::vector<NodeRef> foldersAt(const FSNode& top, const std::set<std::string>& paths);

}  // namespace zelk
