// SPDX-License-Identifier: MIT
// Arrow key navigation in the bubble map. Standard library only.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "ui/charts/CirclePacking.h"

namespace zelk {

enum class WalkDirection { left, right, up, down };

/// The index of the circle next to `from` in a direction; absent if there is none. Imagine a circle that grows in the
/// direction while its edge stays on the centre of `from`: the first centre that it reaches is the next one. Straight
/// ahead that is the distance; centres off to a side count as further away, those behind not at all. (With plain
/// distance, some bubbles could not be reached by any key.) The first of equals.
std::optional<std::size_t> nextInDirection(const std::vector<PackedCircle>& circles, std::size_t from,
                                           WalkDirection direction);

/// The index of the largest and the smallest circle, the first of equals; absent if there are none.
std::optional<std::size_t> largestCircle(const std::vector<PackedCircle>& circles);
std::optional<std::size_t> smallestCircle(const std::vector<PackedCircle>& circles);

}  // namespace zelk
