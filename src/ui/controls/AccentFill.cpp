// SPDX-License-Identifier: MIT
#include "ui/controls/AccentFill.h"

#include <QPainter>
#include <algorithm>

#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

void AccentFill::draw(QPainter& painter) {
    const QRectF all = boundingRect();
    painter.setBrush(
        linearBrush(all.topLeft(), all.bottomRight(), {{0, AccentGradient::from()}, {1, AccentGradient::to()}}));
    const double corner = std::min({corner_, all.width() / 2, all.height() / 2});
    painter.drawRoundedRect(all, corner, corner);
}

}  // namespace zelk

#include "moc_AccentFill.cpp"
