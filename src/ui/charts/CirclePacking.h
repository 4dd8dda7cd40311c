// SPDX-License-Identifier: MIT
// The layout of the bubble map and the way through it, without drawing. Standard library only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelk {

struct PackItem {
    std::string id;
    std::int64_t bytes = 0;  ///< the weight; skipped unless positive
};

struct PackedPoint {
    double x = 0;
    double y = 0;

    bool operator==(const PackedPoint&) const = default;
};

/// In the units of the rectangle given to pack().
struct PackedCircle {
    std::string id;
    PackedPoint center;
    double radius = 0;

    bool operator==(const PackedCircle&) const = default;
};

/// Packs circles with areas proportional to the bytes around the first one, in the given order: pass the large ones
/// first to have them in the middle. The result is scaled to leave a margin of 24 in a rectangle of this size and
/// centred in it; if the rectangle is too small for the margin, radii are zero or negative. Circles do not overlap,
/// unless one finds no place in 40,000 steps of its spiral. Quadratic in the number of items; meant for a few dozen.
std::vector<PackedCircle> pack(const std::vector<PackItem>& items, double width, double height);

/// The index of the circle at `point`: the smallest if several overlap, the first of equals; absent if there is none.
std::optional<std::size_t> hitTest(const std::vector<PackedCircle>& circles, PackedPoint point);

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
