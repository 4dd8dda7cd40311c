// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk::zoo {

/// Removes what stands below `folder`, and `folder` too where `itself`. Paths may be longer than PATH_MAX and folders
/// nested to any depth; folders without permissions are opened up first; links are removed and not followed; nothing on
/// another device is touched. False if something is left (errno tells the last failure).
bool removeTree(const std::string& folder, bool itself = true);

}  // namespace zelk::zoo
