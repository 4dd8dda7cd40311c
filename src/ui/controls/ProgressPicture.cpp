// SPDX-License-Identifier: MIT
#include "ui/controls/ProgressPicture.h"

#include <algorithm>
#include <cmath>

#include "ui/controls/Canvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

ProgressSliver progressSliver(double seconds, double trackWidth) {
    constexpr double period = 1.5;
    constexpr double share = 0.34;
    const double phase = std::fmod(seconds, period) / period;
    const double width = share * trackWidth;
    return {(trackWidth + width) * phase - width, width};
}

void drawProgress(Canvas& canvas, QSizeF size, double seconds, const QColor& track, const QColor& color) {
    constexpr double tailOpacity = 0.35;
    const double corner = size.height() / 2;
    canvas.bar({QPointF(0, 0), size}, corner, corner, Paint::solid(track));
    const ProgressSliver sliver = progressSliver(seconds, size.width());
    const double right = sliver.left + sliver.width;
    const QRectF within(QPointF(std::max(0.0, sliver.left), 0), QPointF(std::min(size.width(), right), size.height()));
    if (within.width() <= 0) return;
    canvas.bar(within, corner, corner,
               Paint::linear({sliver.left, 0}, {right, 0}, {{0, withOpacity(color, tailOpacity)}, {1, color}}));
}

void ProgressPicture::setSeconds(double seconds) {
    if (take(seconds_, seconds)) emit secondsChanged();
}

void ProgressPicture::setTrack(const QColor& track) {
    if (take(track_, track)) emit trackChanged();
}

void ProgressPicture::setColor(const QColor& color) {
    if (take(color_, color)) emit colorChanged();
}

void ProgressPicture::draw(Canvas& canvas) const {
    drawProgress(canvas, size(), seconds_, track_, color_);
}

}  // namespace zelk

#include "moc_ProgressPicture.cpp"
