// SPDX-License-Identifier: MIT
#include "ui/controls/SoftShadow.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/theme/ZelkTheme.h"

namespace zelk {

void SoftShadow::draw(QPainter& painter) {
    constexpr double offset = 2;  // as if lit from above
    const int rings = std::max(1, static_cast<int>(std::lround(radius_)));
    // Stacks growing rounded rectangles, each with the opacity that adds up to `strength_` where all overlap.
    painter.setBrush(withOpacity(Qt::black, 1 - std::pow(1 - strength_, 1.0 / rings)));
    for (int ring = 0; ring < rings; ++ring) {
        const double grown = radius_ * (1 - 2.0 * (ring + 0.5) / rings);
        const double margin = inset_ - grown;
        const QRectF panel = boundingRect().translated(0, offset).adjusted(margin, margin, -margin, -margin);
        const double round =
            std::clamp(corner_ + grown, 0.0, std::max(0.0, std::min(panel.width(), panel.height()) / 2));
        painter.drawRoundedRect(panel, round, round);
    }
}

}  // namespace zelk

#include "moc_SoftShadow.cpp"
