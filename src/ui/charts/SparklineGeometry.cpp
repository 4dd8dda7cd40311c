// SPDX-License-Identifier: MIT
#include "ui/charts/SparklineGeometry.h"

#include <algorithm>

namespace zelk {

std::vector<QPointF> sparklinePoints(const std::vector<double>& values, QSizeF frame) {
    constexpr double inset = 2;
    constexpr double smallestRange = 1;  // avoids a division by zero for constant values
    if (values.size() < 2) return {};

    const auto [lowest, highest] = std::ranges::minmax(values);
    const double range = std::max(highest - lowest, smallestRange);
    const auto steps = static_cast<double>(values.size() - 1);
    std::vector<QPointF> points;
    points.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double risen = (values[i] - lowest) / range;
        points.emplace_back(frame.width() * static_cast<double>(i) / steps,
                            frame.height() - (frame.height() - 2 * inset) * risen - inset);
    }
    return points;
}

std::vector<QPointF> sparklineArea(const std::vector<QPointF>& points, double height) {
    if (points.empty()) return {};
    std::vector<QPointF> corners{{points.front().x(), height}};
    corners.insert(corners.end(), points.begin(), points.end());
    corners.emplace_back(points.back().x(), height);
    return corners;
}

}  // namespace zelk
