// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "platform/Failure.h"
#include "platform/ItemPath.h"
#include "platform/posix/Descriptor.h"

namespace zelk {

/// Whether a mount in an entry is still to be looked for before anything of it is removed.
enum class MountsInside { unknown, none };

/// Permanently deletes `name` from the directory `parent`, a folder with its contents. Stops at the first failure in
/// the order of the folders' listings, in which everything before it is removed.
///
/// - Has other threads of this process help with a large folder, which hold a permit each. By the time they stop, they
///   may have removed some of what comes after a failure.
/// - Opens every folder relative to its parent: neither depth nor path length matters, and nothing that is swapped in
///   meanwhile is followed.
/// - Removes links without following them.
/// - Never removes what is mounted, from another volume or from elsewhere on this one. Refuses a folder with a mount
///   below it before removing anything, also if the mount is under another path of the same folder; unless the caller
///   has looked, then it stops at one.
/// - Grants this user access to `name` and folders below it where their permissions forbid it: half a removed item
///   would be worse. Changes no other permission.
/// - Ignores entries that others remove meanwhile; only `name` itself must exist at the start.
Failure removeEntry(int parent, const std::string& name, MountsInside inside = MountsInside::unknown);

/// Like removeEntry(), for an item that a scan found, reached by the way it was found. Waits for a permit.
Failure removeItem(const ItemPath& item);

/// Permanently deletes the contents of `folder`, each entry on its own and with its own permit, several at the same
/// time where there are many, and continues after failures. Returns the number of deleted entries.
std::size_t removeEntriesOf(const Descriptor& folder);

}  // namespace zelk
