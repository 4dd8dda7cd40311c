// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Failure.h"
#include "platform/TrashedItem.h"
#include "platform/linux/files/MoveWithoutReplacing.h"
#include "platform/linux/trash/TrashFolder.h"

namespace zelk {

/// Moves the entry `name` of `trash` to `place` if its identity and info are those of `item`. Deletes the info file
/// last, after flushing the move, so that after a crash the item is either restored or restorable. On failure, whose
/// reason it returns, the item is in the Trash with its info, and `place` is unchanged.
///
/// First renames the entry within the trash, as emptying does, so that an item that is trashed under the same name
/// meanwhile is never moved instead.
Failure restoreFromTrash(const TrashFolder& trash, const std::string& name, const TrashedItem& item,
                         const Place& place);

}  // namespace zelk
