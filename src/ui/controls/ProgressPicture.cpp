// SPDX-License-Identifier: MIT
#include "ui/controls/ProgressPicture.h"

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
    const ProgressSliver sliver = progressSliver(seconds_, width());
    const double right = sliver.left + sliver.width;
    const QRectF within(QPointF(std::max(0.0, sliver.left), 0), QPointF(std::min(width(), right), height()));
    if (within.width() <= 0) return;
    painter.setBrush(linearBrush({sliver.left, 0}, {right, 0}, {{0, withOpacity(color_, tailOpacity)}, {1, color_}}));
    const double round = std::min(corner, within.width() / 2);
    painter.drawRoundedRect(within, round, round);
}

}  // namespace zelk

#include "moc_ProgressPicture.cpp"
