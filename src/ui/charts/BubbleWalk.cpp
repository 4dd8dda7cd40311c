// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleWalk.h"

#include <algorithm>
#include <cmath>

namespace zelk {

namespace {

/// An offset, split along a direction and across it.
struct Bearing {
    double ahead = 0;
    double aside = 0;
};

Bearing bearingOf(PackedPoint from, PackedPoint to, WalkDirection direction) {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    switch (direction) {
        case WalkDirection::left:
            return {-x, std::abs(y)};
        case WalkDirection::right:
            return {x, std::abs(y)};
        case WalkDirection::up:
            return {-y, std::abs(x)};
        case WalkDirection::down:
            return {y, std::abs(x)};
    }
    return {};
}

bool smaller(const PackedCircle& a, const PackedCircle& b) {
    return a.radius < b.radius;
}

std::optional<std::size_t> indexIn(const std::vector<PackedCircle>& circles,
                                   std::vector<PackedCircle>::const_iterator found) {
    if (found == circles.end()) return std::nullopt;
    return static_cast<std::size_t>(found - circles.begin());
}

}  // namespace

std::optional<std::size_t> nextInDirection(const std::vector<PackedCircle>& circles, std::size_t from,
                                           WalkDirection direction) {
    const PackedPoint here = circles.at(from).center;
    std::optional<std::size_t> next;
    double least = 0;
    for (std::size_t at = 0; at < circles.size(); ++at) {
        const Bearing bearing = bearingOf(here, circles[at].center, direction);
        if (!(bearing.ahead > 0)) continue;
        const double far = bearing.ahead + bearing.aside * bearing.aside / bearing.ahead;
        if (next && far >= least) continue;
        next = at;
        least = far;
    }
    return next;
}

std::optional<std::size_t> largestCircle(const std::vector<PackedCircle>& circles) {
    return indexIn(circles, std::max_element(circles.begin(), circles.end(), smaller));
}

std::optional<std::size_t> smallestCircle(const std::vector<PackedCircle>& circles) {
    return indexIn(circles, std::min_element(circles.begin(), circles.end(), smaller));
}

}  // namespace zelk
