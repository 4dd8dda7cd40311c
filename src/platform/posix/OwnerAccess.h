// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

/// Lets the owner of the folder `folder`, an open one or one opened for lookups, read, change and search it. False if
/// that changes nothing: it is another user's, its owner may do all that already, or its volume keeps no permissions.
bool giveOwnerAccess(int folder);

/// The same for the folder `name` in `parent`, which must be neither a link nor on another mount.
bool giveOwnerAccess(int parent, const std::string& name);

}  // namespace zelk
