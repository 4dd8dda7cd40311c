// SPDX-License-Identifier: MIT
// How the arrow keys go through the bubble map: the standard library alone.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "ui/charts/CirclePacking.h"

namespace zelk {

enum class WalkDirection { left, right, up, down };

/// The index of the circle that lies next to `from` in this direction; absent if nothing lies there. It is the one
/// whose middle is met first by a ring that starts as a point in the middle of `from` and grows in this direction only:
/// what lies straight ahead counts by its distance, what lies aside by more, what lies behind not at all. (Walks by
/// plain distance leave bubbles out that no key leads to.) Of equal ones the first.
std::optional<std::size_t> nextInDirection(const std::vector<PackedCircle>& circles, std::size_t from,
                                           WalkDirection direction);

/// The index of the largest circle, of the smallest; of equal ones the first. Absent if there is none.
std::optional<std::size_t> largestCircle(const std::vector<PackedCircle>& circles);
std::optional<std::size_t> smallestCircle(const std::vector<PackedCircle>& circles);

}  // namespace zelk
