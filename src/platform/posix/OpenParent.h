// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/ItemPath.h"
#include "platform/posix/Descriptor.h"

namespace zelk {

/// Opens the parent folder of `item` for lookups, by the way that the item was found: fails if one of its folders was
/// swapped for a link since then. Returns no descriptor, with errno set, on failure.
Descriptor openParent(const ItemPath& item);

/// The errno that openParent() would fail with; 0 if it would succeed or if links may be followed anywhere. For callers
/// that then leave the path to the system and report its errors instead.
int errorOnWay(const ItemPath& item);

/// The displayable reason of an openParent() failure, by its errno.
std::string reasonOfParent(const ItemPath& item, int error);

}  // namespace zelk
