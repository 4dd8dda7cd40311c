// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "reclaim/DuplicateGroup.h"
#include "reclaim/Removal.h"

namespace zelk {

/// What a removal of duplicates has moved to the Trash.
struct MovedDuplicates {
    struct Item {
        HashedFile file;
        TrashedItem trashed;
    };
    std::size_t moved = 0;
    std::vector<std::string> stayed;  ///< the paths that the Trash refused or that were skipped
    std::vector<Item> restorable;  ///< those whose place in the Trash the system reported, in the order of their moves
};

/// Moves every file of `group` but that at the path `keep` to the Trash, counting each in `removal`, which is one of as
/// many items. Blocks; may be called from any thread. The services must outlive the call.
///
/// The group may be days old, so each file is looked at just before its move. Nothing more is moved from the moment at
/// which the kept file is no longer what was hashed, and a file stays that is not what was hashed either. If a move
/// takes the kept file along, as where two file systems show the same file, it is undone. What was changed just before
/// it was hashed is read again, since the times of files are too coarse to show a further change.
MovedDuplicates trashDuplicates(const DuplicateGroup& group, const std::string& keep, const Platform& platform,
                                Removal& removal);

}  // namespace zelk
