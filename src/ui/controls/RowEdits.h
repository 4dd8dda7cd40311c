// SPDX-License-Identifier: MIT
// The smallest set of removals and insertions between two lists, so that a view keeps its position and delegates.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zelk {

/// `count` rows starting at `first`.
struct RowRange {
    std::size_t first = 0;
    std::size_t count = 0;

    bool operator==(const RowRange&) const = default;
};

struct RowEdits {
    std::vector<RowRange> removals;    ///< rows of the old list, last range first; apply in this order
    std::vector<RowRange> insertions;  ///< rows of the new list, first range first; apply after the removals
};

/// Computes the edits from `before` to `after`. A key identifies a row and is unique in its list. A row that moves is
/// removed and inserted; as many rows as possible stay.
RowEdits rowEdits(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after);

}  // namespace zelk
