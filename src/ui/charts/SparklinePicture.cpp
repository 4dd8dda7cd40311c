// SPDX-License-Identifier: MIT
#include "ui/charts/SparklinePicture.h"

#include <QPainter>

#include "ui/charts/SparklineGeometry.h"
#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

void SparklinePicture::draw(QPainter& painter) {
    constexpr double opacityAtTop = 0.28;
    constexpr double opacityAtFloor = 0.02;
    constexpr double lineWidth = 2;
    const std::vector<QPointF> points = sparklinePoints({values_.begin(), values_.end()}, size());
    if (points.empty()) return;
    const std::vector<QPointF> area = sparklineArea(points, height());
    painter.setBrush(linearBrush({0, 0}, {0, height()},
                                 {{0, withOpacity(color_, opacityAtTop)}, {1, withOpacity(color_, opacityAtFloor)}}));
    painter.drawPolygon(area.data(), static_cast<int>(area.size()));
    painter.setPen(QPen(color_, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(points.data(), static_cast<int>(points.size()));
}

}  // namespace zelk

#include "moc_SparklinePicture.cpp"
