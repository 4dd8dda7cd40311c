// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "scan/FSNode.h"

namespace zelk {

/// What of `path` comes behind a scan root and a slash: nothing for the root itself, absent if it does not lie there.
std::optional<std::string_view> behindRoot(std::string_view root, std::string_view path);

/// The folders of the tree below `top` at these paths, those above others first. One path may be several folders where
/// scan roots lie in one another. However many siblings a folder has, a path costs no more than its own length: the
/// names of a level that is come by are put into an index, once. Reads names and children alone.
std::vector<NodeRef> foldersAt(const FSNode& top, const std::set<std::string>& paths);

}  // namespace zelk
