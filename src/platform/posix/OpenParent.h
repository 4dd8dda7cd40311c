// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/ItemPath.h"
#include "platform/posix/Descriptor.h"

namespace zelk {

/// Opens the folder that holds `item`, for looking names up, by the way that the item was found: where a link has been
/// put in place of one of its folders since then, it fails instead of being led elsewhere. Without a descriptor, and
/// with errno set, on a failure.
Descriptor openParent(const ItemPath& item);

/// What openParent() would fail with, and 0 where it would not or where any link may be followed: asked by those who
/// then leave the way to the system, and take its word for all else.
int errorOnWay(const ItemPath& item);

/// Why openParent() failed, by its errno, for a person.
std::string reasonOfParent(const ItemPath& item, int error);

}  // namespace zelk
