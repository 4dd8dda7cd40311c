// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/Failure.h"
#include "platform/linux/files/MoveWithoutReplacing.h"
#include "platform/linux/trash/TrashFolder.h"

namespace zelk {

/// Gives the next number, from 2 on, for a name that is taken.
using NextNumber = std::function<std::size_t()>;

/// Moves `item` into `trash`. Its info file, which says that it was at `path`, is there first and on the disk: at no
/// moment is something in the Trash that could not be put back. On a failure, whose reason it gives, the item is where
/// it was and no info file is left. Nothing in the Trash is ever written over, such as content that lost its info.
Failure moveIntoTrash(const Place& item, const std::string& path, const TrashFolder& trash, const NextNumber& next);

}  // namespace zelk
