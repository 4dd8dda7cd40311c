// SPDX-License-Identifier: MIT
#include "ui/controls/Canvas.h"

#include <utility>

namespace zelk {

Paint Paint::solid(const QColor& color) {
    Paint paint;
    paint.stops = {{0, color}};
    return paint;
}

Paint Paint::linear(QPointF from, QPointF to, std::vector<GradientStop> stops) {
    Paint paint;
    paint.kind = Kind::linear;
    paint.from = from;
    paint.to = to;
    paint.stops = std::move(stops);
    return paint;
}

Paint Paint::radial(QPointF center, double radius, std::vector<GradientStop> stops) {
    Paint paint;
    paint.kind = Kind::radial;
    paint.from = center;
    paint.radius = radius;
    paint.stops = std::move(stops);
    return paint;
}

Paint Paint::conical(QPointF center, double angle, std::vector<GradientStop> stops) {
    Paint paint;
    paint.kind = Kind::conical;
    paint.from = center;
    paint.angle = angle;
    paint.stops = std::move(stops);
    return paint;
}

}  // namespace zelk
