// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "reclaim/ReclaimCatalogue.h"

namespace zelk {

using ReclaimTotals = std::vector<std::pair<const ReclaimCategory*, std::int64_t>>;

/// Bytes of all items.
std::int64_t totalSize(const std::vector<Reclaimable>& items);

/// Bytes per category that has items, largest first. Items of a category that is not in the catalogue are left out.
ReclaimTotals totalsByCategory(const std::vector<Reclaimable>& items);

}  // namespace zelk
