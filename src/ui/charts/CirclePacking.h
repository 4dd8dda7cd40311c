// SPDX-License-Identifier: MIT
// The layout of the bubble map, apart from any drawing: the standard library alone.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zelk {

struct PackItem {
    std::string id;
    std::int64_t bytes = 0;  ///< the weight; what has none is left out
};

struct PackedPoint {
    double x = 0;
    double y = 0;

    bool operator==(const PackedPoint&) const = default;
};

/// In the units of the rectangle that was packed into.
struct PackedCircle {
    std::string id;
    PackedPoint center;
    double radius = 0;

    bool operator==(const PackedCircle&) const = default;
};

/// Circles whose areas are as the bytes, side by side around the first one, in the order given (a caller that wants the
/// large ones in the middle passes them first), scaled to keep 24 off the sides of a rectangle of this width and height
/// and centred in it. In a rectangle too small for that margin the radii are zero or negative. They do not overlap,
/// unless one found no place on 40,000 steps of its spiral. Quadratic in the number of items: meant for a few dozen.
std::vector<PackedCircle> pack(const std::vector<PackItem>& items, double width, double height);

/// The index of the circle at this point, of several the smallest, of equal ones the first; absent if there is none.
std::optional<std::size_t> hitTest(const std::vector<PackedCircle>& circles, PackedPoint point);

}  // namespace zelk
