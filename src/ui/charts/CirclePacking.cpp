// SPDX-License-Identifier: MIT
#include "ui/charts/CirclePacking.h"

#include <algorithm>
#include <cmath>

namespace zelk {

namespace {

// Shares of the largest radius.
constexpr double gapShare = 0.012;
constexpr double stepShare = 0.03;
constexpr double turnPerStep = 0.25;  // radians
constexpr int mostCandidates = 40'000;
constexpr double margin = 24;

struct Circle {
    double x = 0;
    double y = 0;
    double radius = 0;
};

/// Whether a circle fits between the placed ones. Tests the latest first, since a candidate usually collides with a
/// neighbour of the previous one. The result does not depend on the order.
bool fits(const std::vector<Circle>& placed, double x, double y, double radius, double gap) {
    return std::all_of(placed.rbegin(), placed.rend(), [&](const Circle& other) {
        return gap + radius + other.radius <= std::hypot(x - other.x, y - other.y);
    });
}

/// Tries positions along an Archimedean spiral from the middle. If none fits, takes the last one.
Circle placeAmong(const std::vector<Circle>& placed, double radius, double gap, double step) {
    Circle circle{0, 0, radius};
    double angle = 0;
    double distance = step;
    for (int candidate = 0; candidate < mostCandidates; ++candidate) {
        circle.x = distance * std::cos(angle);
        circle.y = distance * std::sin(angle);
        if (fits(placed, circle.x, circle.y, radius, gap)) break;
        distance += step;
        angle += turnPerStep;
    }
    return circle;
}

std::vector<Circle> place(const std::vector<double>& radii) {
    const double largest = *std::max_element(radii.begin(), radii.end());
    std::vector<Circle> placed;
    placed.reserve(radii.size());
    for (const double radius : radii) {
        placed.push_back(placed.empty() ? Circle{0, 0, radius}
                                        : placeAmong(placed, radius, largest * gapShare, largest * stepShare));
    }
    return placed;
}

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

std::vector<PackedCircle> pack(const std::vector<PackItem>& items, double width, double height) {
    std::vector<const PackItem*> weighted;
    std::vector<double> radii;
    for (const PackItem& item : items) {
        if (item.bytes <= 0) continue;
        weighted.push_back(&item);
        radii.push_back(std::sqrt(static_cast<double>(item.bytes)));
    }
    if (weighted.empty() || !(width > 0) || !(height > 0)) return {};

    const std::vector<Circle> circles = place(radii);
    double minX = circles.front().x - circles.front().radius;
    double minY = circles.front().y - circles.front().radius;
    double maxX = circles.front().x + circles.front().radius;
    double maxY = circles.front().y + circles.front().radius;
    for (const Circle& circle : circles) {
        minX = std::min(minX, circle.x - circle.radius);
        minY = std::min(minY, circle.y - circle.radius);
        maxX = std::max(maxX, circle.x + circle.radius);
        maxY = std::max(maxY, circle.y + circle.radius);
    }
    const double boxWidth = std::max(maxX - minX, 1.0);
    const double boxHeight = std::max(maxY - minY, 1.0);
    const double scale = std::min((height - 2 * margin) / boxHeight, (width - 2 * margin) / boxWidth);
    const double left = (width - boxWidth * scale) * 0.5 - minX * scale;
    const double top = (height - boxHeight * scale) * 0.5 - minY * scale;

    std::vector<PackedCircle> packed;
    packed.reserve(circles.size());
    for (std::size_t at = 0; at < circles.size(); ++at) {
        const Circle& circle = circles[at];
        packed.push_back({weighted[at]->id, {left + scale * circle.x, top + scale * circle.y}, scale * circle.radius});
    }
    return packed;
}

std::optional<std::size_t> hitTest(const std::vector<PackedCircle>& circles, PackedPoint point) {
    std::optional<std::size_t> hit;
    for (std::size_t at = 0; at < circles.size(); ++at) {
        const PackedCircle& circle = circles[at];
        const bool inside = std::hypot(point.x - circle.center.x, point.y - circle.center.y) <= circle.radius;
        if (inside && (!hit || circle.radius < circles[*hit].radius)) hit = at;
    }
    return hit;
}

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
