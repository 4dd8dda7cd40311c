// SPDX-License-Identifier: MIT
#include "ui/charts/HouseTile.h"

#include <QLinearGradient>
#include <QPainter>

#include "ui/theme/ZelkTheme.h"

namespace zelk {

void paintHouseTile(QPainter& painter, double side) {
    QLinearGradient gradient(0, 0, side, side);
    gradient.setColorAt(0, AccentGradient::from());
    gradient.setColorAt(1, AccentGradient::to());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    const double corner = side * 0.24;
    painter.drawRoundedRect(QRectF(0, 0, side, side), corner, corner);
}

}  // namespace zelk
