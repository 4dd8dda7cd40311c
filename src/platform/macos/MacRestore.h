// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Failure.h"
#include "platform/TrashedItem.h"

namespace zelk {

/// Moves `item` from the Trash back to where it was. Uses descriptors, so a folder swapped into either path is not
/// followed. Fails on volumes that cannot rename without replacing. Returns the reason, for display, if the item stays
/// in the Trash.
Failure moveOutOfTrash(const TrashedItem& item);

}  // namespace zelk
