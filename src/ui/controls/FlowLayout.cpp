// SPDX-License-Identifier: MIT
#include "ui/controls/FlowLayout.h"

#include <algorithm>

namespace zelk {

FlowPlacement flowLayout(const std::vector<QSizeF>& sizes, double spacing, double width) {
    FlowPlacement placement;
    double x = 0;
    double y = 0;
    double rowHeight = 0;
    for (const QSizeF& size : sizes) {
        if (x + size.width() > width) {
            y += rowHeight + spacing;
            x = 0;
            rowHeight = 0;
        }
        placement.positions.emplace_back(x, y);
        x += size.width() + spacing;
        rowHeight = std::max(rowHeight, size.height());
    }
    placement.height = y + rowHeight;
    return placement;
}

double flowIdealWidth(const std::vector<QSizeF>& sizes, double spacing) {
    // Sums in the same order as flowLayout(), so that rounding cannot wrap a row of exactly this width.
    double x = 0;
    double width = 0;
    for (const QSizeF& size : sizes) {
        width = x + size.width();
        x += size.width() + spacing;
    }
    return width;
}

}  // namespace zelk
