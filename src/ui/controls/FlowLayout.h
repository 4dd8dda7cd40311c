// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSizeF>
#include <limits>
#include <vector>

namespace zelk {

struct FlowPlacement {
    std::vector<QPointF> positions;  ///< top left corners, in the order of the sizes
    double height = 0;
};

inline constexpr double unlimitedWidth = std::numeric_limits<double>::infinity();

/// Places items in rows, wrapping where the next item exceeds `width`. An item wider than `width` wraps even if it is
/// the first, which leaves `spacing` above it.
FlowPlacement flowLayout(const std::vector<QSizeF>& sizes, double spacing, double width = unlimitedWidth);

/// The width of all items in one row.
double flowIdealWidth(const std::vector<QSizeF>& sizes, double spacing);

}  // namespace zelk
