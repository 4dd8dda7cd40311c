// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

using ReclaimTotals = std::vector<std::pair<const ReclaimCategory*, std::int64_t>>;

/// The sum of the sizes of all items.
std::int64_t totalSize(const std::vector<Reclaimable>& items);

/// Bytes of each category that has items, largest first. Leaves out categories that are not in the catalogue.
ReclaimTotals totalsByCategory(const std::vector<Reclaimable>& items);

}  // namespace zelk
