// SPDX-License-Identifier: MIT
#include "ui/charts/BubbleTip.h"

#include <algorithm>

#include "ui/theme/DisplayText.h"

namespace zelk {

BubbleTip BubbleTip::of(const BubbleSlice& slice, QPointF point, QSizeF chart, double textScale) {
    constexpr double offset = 12;     // from the pointer
    constexpr double roomWide = 220;  // reserved between the tip and the right edge
    constexpr double roomHigh = 56;   // reserved below
    const double width = roomWide * textScale;
    BubbleTip tip;
    tip.shown = true;
    tip.label = slice.label;
    tip.line = byteFigure(slice.bytes);
    if (slice.reclaimable) tip.line += QStringLiteral(" · reclaimable");
    tip.reclaimable = slice.reclaimable;
    tip.corner = {std::min(point.x() + offset, std::max(chart.width() - width, 0.0)),
                  std::min(point.y() + offset, std::max(chart.height() - roomHigh * textScale, 0.0))};
    tip.widest = std::min(std::max(chart.width() - tip.corner.x(), width), chart.width());
    return tip;
}

}  // namespace zelk

#include "moc_BubbleTip.cpp"
