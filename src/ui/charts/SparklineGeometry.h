// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSizeF>
#include <vector>

namespace zelk {

/// The points of a small curve in a frame, y downwards: it keeps 2 points off the top and the bottom. Fewer than two
/// values have no curve. A history that is flat lies on the floor.
std::vector<QPointF> sparklinePoints(const std::vector<double>& values, QSizeF frame);

/// The corners of what lies between the curve and the floor of a frame of this height.
std::vector<QPointF> sparklineArea(const std::vector<QPointF>& points, double height);

}  // namespace zelk
