// SPDX-License-Identifier: MIT
// From one list of rows to the next with the fewest rows touched, so that a view keeps its place and its delegates.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zelk {

/// `count` rows from `first` on.
struct RowRange {
    std::size_t first = 0;
    std::size_t count = 0;

    bool operator==(const RowRange&) const = default;
};

struct RowEdits {
    std::vector<RowRange> removals;    ///< in rows of the old list, the last one first: to be made in this order
    std::vector<RowRange> insertions;  ///< in rows of the new list, the first one first; after the removals
};

/// What makes `before` into `after`. A key names a row and is unique in its list; a row that moves is taken out and put
/// in again. As many rows as can be stay where they are.
RowEdits rowEdits(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after);

}  // namespace zelk
