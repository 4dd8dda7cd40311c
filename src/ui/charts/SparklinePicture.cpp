// SPDX-License-Identifier: MIT
#include "ui/charts/SparklinePicture.h"

#include "ui/charts/SparklineGeometry.h"
#include "ui/controls/Canvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

void drawSparkline(Canvas& canvas, const std::vector<double>& values, QSizeF frame, const QColor& color) {
    constexpr double opacityAtTop = 0.28;
    constexpr double opacityAtFloor = 0.02;
    constexpr double lineWidth = 2;
    const std::vector<QPointF> points = sparklinePoints(values, frame);
    if (points.empty()) return;
    canvas.area(sparklineArea(points, frame.height()),
                Paint::linear({0, 0}, {0, frame.height()},
                              {{0, withOpacity(color, opacityAtTop)}, {1, withOpacity(color, opacityAtFloor)}}));
    canvas.line(points, lineWidth, Paint::solid(color));
}

void SparklinePicture::setValues(const QList<qreal>& values) {
    if (take(values_, values)) emit valuesChanged();
}

void SparklinePicture::setColor(const QColor& color) {
    if (take(color_, color)) emit colorChanged();
}

void SparklinePicture::draw(Canvas& canvas) const {
    drawSparkline(canvas, {values_.begin(), values_.end()}, size(), color_);
}

}  // namespace zelk

#include "moc_SparklinePicture.cpp"
