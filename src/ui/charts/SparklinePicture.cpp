// SPDX-License-Identifier: MIT
#include "ui/charts/SparklinePicture.h"

#include <QPainter>
#include <algorithm>

#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

std::vector<QPointF> sparklinePoints(const std::vector<double>& values, QSizeF frame) {
    constexpr double inset = 2;
    constexpr double smallestRange = 1;  // avoids a division by zero for constant values
    if (values.size() < 2) return {};

    const auto [lowest, highest] = std::ranges::minmax(values);
    const double range = std::max(highest - lowest, smallestRange);
    const auto steps = static_cast<double>(values.size() - 1);
    std::vector<QPointF> points;
    points.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double risen = (values[i] - lowest) / range;
        points.emplace_back(frame.width() * static_cast<double>(i) / steps,
                            frame.height() - (frame.height() - 2 * inset) * risen - inset);
    }
    return points;
}

std::vector<QPointF> sparklineArea(const std::vector<QPointF>& points, double height) {
    if (points.empty()) return {};
    std::vector<QPointF> corners{{points.front().x(), height}};
    corners.insert(corners.end(), points.begin(), points.end());
    corners.emplace_back(points.back().x(), height);
    return corners;
}

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
