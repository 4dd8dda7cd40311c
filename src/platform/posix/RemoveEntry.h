// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "platform/Failure.h"
#include "platform/ItemPath.h"
#include "platform/posix/Descriptor.h"

namespace zelk {

/// Removes `name` from the directory `parent` for good, a folder with everything below it, and stops at the first thing
/// that cannot be removed.
///
/// - All of it by descriptors, each opened in the one above: neither the depth of a tree nor the length of its paths
///   matters, and nothing that is put in place of a folder meanwhile leads elsewhere.
/// - Links are removed and not followed.
/// - What is mounted, from another volume or from elsewhere on this one, stays. A folder with a mount below it is
///   refused before anything of it is gone, also where the mount is at another path of the same folder.
/// - A folder below `name`, and `name` itself, that its owner may not read or change is opened to the owner, where that
///   is this user: the person wants it gone, and half of it gone would be the worst. No other permission is changed.
/// - What somebody else removes meanwhile is well removed; only `name` itself has to be there at the start.
Failure removeEntry(int parent, const std::string& name);

/// The same for an item of a survey, which is reached by the way that it was found. Waits for its turn.
Failure removeItem(const ItemPath& item);

/// Removes what `folder` holds, each entry on its own and in its turn: one that cannot be removed stays, and the next
/// goes on. The number of entries removed.
std::size_t removeEntriesOf(const Descriptor& folder);

}  // namespace zelk
