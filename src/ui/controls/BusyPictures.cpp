// SPDX-License-Identifier: MIT
#include "ui/controls/BusyPictures.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

ProgressSliver progressSliver(double seconds, double trackWidth) {
    constexpr double period = 1.5;
    constexpr double share = 0.34;
    const double phase = std::fmod(seconds, period) / period;
    const double width = share * trackWidth;
    return {(trackWidth + width) * phase - width, width};
}

void ProgressPicture::draw(QPainter& painter) {
    constexpr double tailOpacity = 0.35;
    const double corner = height() / 2;
    painter.setBrush(track_);
    painter.drawRoundedRect(boundingRect(), corner, corner);
    const ProgressSliver sliver =
        part_ < 0 ? progressSliver(seconds_, width()) : ProgressSliver{0, std::min(part_, 1.0) * width()};
    const double right = sliver.left + sliver.width;
    const QRectF within(QPointF(std::max(0.0, sliver.left), 0), QPointF(std::min(width(), right), height()));
    if (within.width() <= 0) return;
    painter.setBrush(linearBrush({sliver.left, 0}, {right, 0}, {{0, withOpacity(color_, tailOpacity)}, {1, color_}}));
    const double round = std::min(corner, within.width() / 2);
    painter.drawRoundedRect(within, round, round);
}

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

#include "moc_BusyPictures.cpp"
