// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "platform/linux/trash/TrashFolder.h"

namespace zelk {

/// Removes for good what `trash` holds when its turn comes, and nothing that is trashed after that; info without
/// content goes too, unless it is so young that somebody may be about to bring the content. Emptyings of one trash wait
/// for each other, in other processes of this application as well.
///
/// An entry is first given a name of its own, its info with it and never without: whatever is trashed or emptied
/// meanwhile, by other programs too, has nothing to do with that name. What is interrupted or cannot be removed has its
/// info and can be put back as far as it is still there; if it can, it gets its old name again.
///
/// The number of entries removed; info alone does not count.
std::size_t emptyTrash(const TrashFolder& trash);

}  // namespace zelk
