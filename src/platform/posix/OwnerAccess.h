// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace zelk {

/// Grants the owner of the open folder `folder` (lookups suffice) read, write and search permission. False if nothing
/// changed: it belongs to another user, the owner has all permissions already, or the volume has none.
bool giveOwnerAccess(int folder);

/// Like giveOwnerAccess(folder), for `name` in `parent`, which must be neither a link nor on another mount.
bool giveOwnerAccess(int parent, const std::string& name);

}  // namespace zelk
