// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk::zoo {

/// Removes the contents of `folder`, and `folder` too if `itself`. Handles paths longer than PATH_MAX and any depth,
/// grants itself access to folders without permissions, removes links without following them, and touches nothing on
/// another device. False if something is left, with the last failure in errno.
bool removeTree(const std::string& folder, bool itself = true);

}  // namespace zelk::zoo
