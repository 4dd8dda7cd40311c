// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "platform/linux/TrashFolder.h"

namespace zelk {

/// Removes for good what `trash` holds, content first and its info after it: what is interrupted or cannot be removed
/// keeps its info and can be put back as far as it is still there. Info without content goes too, unless it is so young
/// that somebody may be about to bring the content. The number of entries removed; info alone does not count.
std::size_t emptyTrash(const TrashFolder& trash);

}  // namespace zelk
