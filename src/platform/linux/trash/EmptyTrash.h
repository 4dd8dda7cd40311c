// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "platform/linux/trash/TrashFolder.h"

namespace zelk {

/// Permanently deletes what `trash` holds once the lock is acquired, and nothing that is trashed later. Deletes
/// orphaned info too, unless it is so young that its content may be about to arrive. Emptyings of one trash wait for
/// each other, also across processes of Zelk.
///
/// Deletes several entries at the same time where there are many. First renames each entry, never separating it from
/// its info, so that nothing that other programs trash or delete meanwhile has the same name. What is interrupted or
/// cannot be deleted keeps its info and can be restored as far as it is left; it gets its old name back if that is
/// free. Where a full volume has no room for another name, deletes entries under their own.
///
/// Returns the number of deleted entries, orphaned info not counted.
std::size_t emptyTrash(const TrashFolder& trash);

}  // namespace zelk
