// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSizeF>
#include <vector>

namespace zelk {

/// The points of a sparkline in a frame, y downwards, with a margin of 2 points at the top and bottom. Constant values
/// lie at the bottom. Empty for fewer than two values.
std::vector<QPointF> sparklinePoints(const std::vector<double>& values, QSizeF frame);

/// The polygon between the curve and the bottom of a frame of this height.
std::vector<QPointF> sparklineArea(const std::vector<QPointF>& points, double height);

}  // namespace zelk
