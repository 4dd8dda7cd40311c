// SPDX-License-Identifier: MIT
#include "ui/controls/SpinnerPicture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

void SpinnerPicture::draw(QPainter& painter) {
    constexpr double noon = 90;
    constexpr double span = 300;
    const double side = std::min(width(), height());
    const double lineWidth = std::max(1.5, side / 9);
    const double head = noon - 360 * turn_;
    const QRectF ring = QRectF(0, 0, side, side).adjusted(lineWidth / 2, lineWidth / 2, -lineWidth / 2, -lineWidth / 2);
    // Ends the tail before the head, so that the gradient's seam lies in the gap.
    const QBrush comet = conicalBrush(ring.center(), head,
                                      {{0, color_}, {span / 360, withOpacity(color_, 0)}, {1, withOpacity(color_, 0)}});
    painter.setPen(QPen(comet, lineWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(ring, static_cast<int>(std::lround(head * 16)), static_cast<int>(span * 16));
}

}  // namespace zelk

#include "moc_SpinnerPicture.cpp"
