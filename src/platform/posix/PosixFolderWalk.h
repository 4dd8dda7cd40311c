// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/FileContents.h"

namespace zelk {

/// Opens `root`, following links to it; null if it is no folder or cannot be opened. Below it, the walk stays on the
/// mount of the root.
std::unique_ptr<FolderWalk> openFolderWalk(const std::string& root);

}  // namespace zelk
