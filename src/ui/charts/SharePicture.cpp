// SPDX-License-Identifier: MIT
#include "ui/charts/SharePicture.h"

#include <algorithm>

#include "ui/controls/Canvas.h"

namespace zelk {

void drawShare(Canvas& canvas, QSizeF size, double share, const QColor& track, const QColor& color) {
    const double corner = size.height() / 2;
    canvas.bar({QPointF(0, 0), size}, corner, corner, Paint::solid(track));
    if (share <= 0) return;
    const double width = std::min(std::max(share * size.width(), size.height()), size.width());
    canvas.bar({0, 0, width, size.height()}, corner, corner, Paint::solid(color));
}

void SharePicture::setShare(double share) {
    if (take(share_, share)) emit shareChanged();
}

void SharePicture::setTrack(const QColor& track) {
    if (take(track_, track)) emit trackChanged();
}

void SharePicture::setColor(const QColor& color) {
    if (take(color_, color)) emit colorChanged();
}

void SharePicture::draw(Canvas& canvas) const {
    drawShare(canvas, size(), share_, track_, color_);
}

}  // namespace zelk

#include "moc_SharePicture.cpp"
