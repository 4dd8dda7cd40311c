// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/trash/TrashFolder.h"

namespace zelk {

/// Info files without content, which other programs show as trashed items. A process that is killed between writing
/// info and moving content leaves them.
enum class Orphans {
    own,     ///< written by Zelk, of any age
    anybody  ///< also those of other programs, unless so young that their content may be about to arrive
};

/// Removes the orphans of `trash`. False if somebody is moving an item right now, so that it could not look.
bool sweepOrphans(const TrashFolder& trash, Orphans which);

}  // namespace zelk
