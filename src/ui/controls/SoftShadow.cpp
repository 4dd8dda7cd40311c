// SPDX-License-Identifier: MIT
#include "ui/controls/SoftShadow.h"

#include <algorithm>
#include <cmath>

#include "ui/controls/Canvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

void drawSoftShadow(Canvas& canvas, QSizeF size, double inset, double corner, double radius, double strength) {
    constexpr double offset = 2;  // light falls from above
    const int rings = std::max(1, static_cast<int>(std::lround(radius)));
    // Growing panels over each other, each as thin as it takes to come to `strength` where all of them lie.
    const double each = 1 - std::pow(1 - strength, 1.0 / rings);
    for (int ring = 0; ring < rings; ++ring) {
        const double grown = radius * (1 - 2.0 * (ring + 0.5) / rings);
        const QRectF panel =
            QRectF(QPointF(0, offset), size).adjusted(inset - grown, inset - grown, grown - inset, grown - inset);
        const double round = std::max(0.0, corner + grown);
        canvas.bar(panel, round, round, Paint::solid(withOpacity(Qt::black, each)));
    }
}

void SoftShadow::draw(Canvas& canvas) const {
    drawSoftShadow(canvas, size(), inset_, corner_, radius_, strength_);
}

}  // namespace zelk

#include "moc_SoftShadow.cpp"
