// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/trash/TrashFolder.h"

namespace zelk {

/// Info files without content, which other programs show as something that was trashed: what is left where somebody was
/// killed between the two.
enum class Orphans {
    own,     ///< written by this application, however young
    anybody  ///< those too that others wrote, unless they are so young that the content may be about to come
};

/// Removes the orphans of `trash`. False if it could not look, because somebody is between the two steps right now.
bool sweepOrphans(const TrashFolder& trash, Orphans which);

}  // namespace zelk
