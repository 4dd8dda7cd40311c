// SPDX-License-Identifier: MIT
#include "ui/components/PainterCanvas.h"

#include <QBrush>
#include <QConicalGradient>
#include <QLinearGradient>
#include <QPainter>
#include <QPen>
#include <QRadialGradient>
#include <QRectF>
#include <cmath>

namespace zelk {

namespace {

QBrush withStops(QGradient gradient, const std::vector<GradientStop>& stops) {
    for (const GradientStop& stop : stops) gradient.setColorAt(stop.at, stop.color);
    return QBrush(gradient);
}

QBrush brushOf(const Paint& paint) {
    switch (paint.kind) {
        case Paint::Kind::solid:
            return QBrush(paint.stops.front().color);
        case Paint::Kind::linear:
            return withStops(QLinearGradient(paint.from, paint.to), paint.stops);
        case Paint::Kind::radial:
            return withStops(QRadialGradient(paint.from, paint.radius), paint.stops);
        case Paint::Kind::conical:
            return withStops(QConicalGradient(paint.from, paint.angle), paint.stops);
    }
    return {};
}

QRectF around(QPointF center, double radius) {
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
}

QPen penOf(const Paint& paint, double width) {
    return {brushOf(paint), width, Qt::SolidLine, Qt::FlatCap};
}

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter) : painter_(painter) {
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterCanvas::disc(QPointF center, double radius, const Paint& paint) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brushOf(paint));
    painter_.drawEllipse(center, radius, radius);
}

void PainterCanvas::ring(QPointF center, double radius, double width, const Paint& paint) {
    painter_.setPen(penOf(paint, width));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawEllipse(center, radius, radius);
}

void PainterCanvas::arc(QPointF center, double radius, double width, double start, double span, const Paint& paint) {
    constexpr double painterUnits = 16;  // to the degree
    painter_.setPen(penOf(paint, width));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawArc(around(center, radius), static_cast<int>(std::lround(start * painterUnits)),
                     static_cast<int>(std::lround(span * painterUnits)));
}

}  // namespace zelk
