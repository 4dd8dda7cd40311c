// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/Failure.h"
#include "platform/linux/files/MoveWithoutReplacing.h"
#include "platform/linux/trash/SharedFlush.h"
#include "platform/linux/trash/TrashFolder.h"

namespace zelk {

/// Returns the next number, starting at 2, for a name that is taken.
using NextNumber = std::function<std::size_t()>;

/// The names of an item in a trash.
struct TrashEntryName {
    std::string name;  ///< in "files"
    std::string info;  ///< the content of its info file
};

/// Moves `item` into `trash` and fills in `entry`. Writes and flushes the info file with its original `path` first, so
/// that everything in the Trash can be restored at every moment; `names` flushes for all moves of this process that are
/// under way. On failure, whose reason it returns, the item is unchanged and no info is left. Never overwrites anything
/// in the Trash, including content without info.
Failure moveIntoTrash(const Place& item, const std::string& path, const TrashFolder& trash, const NextNumber& next,
                      SharedFlush& names, TrashEntryName& entry);

}  // namespace zelk
