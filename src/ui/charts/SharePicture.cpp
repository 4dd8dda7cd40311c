// SPDX-License-Identifier: MIT
#include "ui/charts/SharePicture.h"

#include <QPainter>
#include <algorithm>

namespace zelk {

void SharePicture::draw(QPainter& painter) {
    const double corner = height() / 2;
    painter.setBrush(track_);
    painter.drawRoundedRect(boundingRect(), corner, corner);
    if (share_ <= 0) return;
    painter.setBrush(color_);
    painter.drawRoundedRect(QRectF(0, 0, std::min(std::max(share_ * width(), height()), width()), height()), corner,
                            corner);
}

}  // namespace zelk

#include "moc_SharePicture.cpp"
