// SPDX-License-Identifier: MIT
#include "ui/controls/SpinnerPicture.h"

#include <algorithm>

#include "ui/controls/Canvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

void drawSpinner(Canvas& canvas, double side, double turn, const QColor& color) {
    constexpr double noon = 90;
    constexpr double span = 300;
    const double lineWidth = std::max(1.5, side / 9);
    const QPointF center(side / 2, side / 2);
    const double radius = (side - lineWidth) / 2;
    const double head = noon - 360 * turn;
    // The tail ends a little before the head comes round again, so that the seam lies in the gap.
    canvas.arc(
        center, radius, lineWidth, head, span,
        Paint::conical(center, head, {{0, color}, {span / 360, withOpacity(color, 0)}, {1, withOpacity(color, 0)}}));
}

void SpinnerPicture::setTurn(double turn) {
    if (take(turn_, turn)) emit turnChanged();
}

void SpinnerPicture::setColor(const QColor& color) {
    if (take(color_, color)) emit colorChanged();
}

void SpinnerPicture::draw(Canvas& canvas) const {
    drawSpinner(canvas, std::min(width(), height()), turn_, color_);
}

}  // namespace zelk

#include "moc_SpinnerPicture.cpp"
