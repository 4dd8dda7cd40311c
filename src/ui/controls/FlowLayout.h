// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSizeF>
#include <limits>
#include <vector>

namespace zelk {

struct FlowPlacement {
    std::vector<QPointF> positions;  ///< of the top left corners, in the order of the sizes
    double height = 0;
};

inline constexpr double unlimitedWidth = std::numeric_limits<double>::infinity();

/// Places items in a row that wraps where the next one would not fit into `width`. An item wider than `width` wraps
/// also when it stands first, which leaves a gap of `spacing` above it.
FlowPlacement flowLayout(const std::vector<QSizeF>& sizes, double spacing, double width = unlimitedWidth);

/// The width of all items in a single row.
double flowIdealWidth(const std::vector<QSizeF>& sizes, double spacing);

}  // namespace zelk
