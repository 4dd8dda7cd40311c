// SPDX-License-Identifier: MIT
// Sets one entry of a trash aside, together with its info file, so that nobody else changes it meanwhile.
#pragma once

#include <atomic>
#include <string>

#include "platform/linux/files/MoveWithoutReplacing.h"
#include "platform/linux/trash/TrashFolder.h"
#include "platform/posix/FileStatus.h"

namespace zelk {

/// An entry as listed; by now its name may belong to another item.
struct TrashEntry {
    std::string name;
    FileStatus content;
};

/// The info file of the entry called `name`.
Place infoOf(const TrashFolder& trash, const std::string& name);

/// Renames the entry to a unique name that nobody else uses, "WHY.PID.NUMBER", and stores it in `own`. Its content, if
/// it has info, has it at every moment. Returns 0 or the errno: ENOENT or ESTALE if the name is gone or belongs to
/// another item. On an error the entry keeps its old name.
///
/// Threads that do so at the same time share `next`, the number to begin with: two entries that come to one name could
/// lose an info file where there are no hard links.
int setAside(const TrashFolder& trash, const TrashEntry& entry, const std::string& why, std::atomic<unsigned>& next,
             std::string& own);

/// Renames the entry called `own` back. Leaves it where it is, with its info, if its old name is taken.
void putBack(const TrashFolder& trash, const std::string& own, const TrashEntry& entry);

}  // namespace zelk
