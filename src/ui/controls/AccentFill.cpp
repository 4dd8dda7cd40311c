// SPDX-License-Identifier: MIT
#include "ui/controls/AccentFill.h"

#include "ui/controls/Canvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

void drawAccentFill(Canvas& canvas, QSizeF size, double corner) {
    canvas.bar(
        {QPointF(0, 0), size}, corner, corner,
        Paint::linear({0, 0}, {size.width(), size.height()}, {{0, AccentGradient::from()}, {1, AccentGradient::to()}}));
}

void AccentFill::setCorner(double corner) {
    if (take(corner_, corner)) emit cornerChanged();
}

void AccentFill::draw(Canvas& canvas) const {
    drawAccentFill(canvas, size(), corner_);
}

}  // namespace zelk

#include "moc_AccentFill.cpp"
