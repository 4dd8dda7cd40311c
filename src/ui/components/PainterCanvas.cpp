// SPDX-License-Identifier: MIT
#include "ui/components/PainterCanvas.h"

#include <QBrush>
#include <QConicalGradient>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRadialGradient>
#include <QRectF>
#include <algorithm>
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

QPen roundPenOf(const Paint& paint, double width) {
    return {brushOf(paint), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPainterPath barPath(const QRectF& rect, double leftCorner, double rightCorner) {
    const double left = std::min({leftCorner, rect.height() / 2, rect.width() / 2});
    const double right = std::min({rightCorner, rect.height() / 2, rect.width() / 2});
    QPainterPath path(rect.topLeft() + QPointF(left, 0));
    path.lineTo(rect.topRight() - QPointF(right, 0));
    path.arcTo(QRectF(rect.right() - 2 * right, rect.top(), 2 * right, 2 * right), 90, -90);
    path.arcTo(QRectF(rect.right() - 2 * right, rect.bottom() - 2 * right, 2 * right, 2 * right), 0, -90);
    path.arcTo(QRectF(rect.left(), rect.bottom() - 2 * left, 2 * left, 2 * left), 270, -90);
    path.arcTo(QRectF(rect.left(), rect.top(), 2 * left, 2 * left), 180, -90);
    path.closeSubpath();
    return path;
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

void PainterCanvas::strokeArc(QPointF center, double radius, double start, double span) {
    constexpr double painterUnits = 16;  // to the degree
    painter_.setBrush(Qt::NoBrush);
    painter_.drawArc(around(center, radius), static_cast<int>(std::lround(start * painterUnits)),
                     static_cast<int>(std::lround(span * painterUnits)));
}

void PainterCanvas::arc(QPointF center, double radius, double width, double start, double span, const Paint& paint) {
    painter_.setPen(penOf(paint, width));
    strokeArc(center, radius, start, span);
}

void PainterCanvas::roundArc(QPointF center, double radius, double width, double start, double span,
                             const Paint& paint) {
    painter_.setPen(roundPenOf(paint, width));
    strokeArc(center, radius, start, span);
}

void PainterCanvas::bar(const QRectF& rect, double leftCorner, double rightCorner, const Paint& paint) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brushOf(paint));
    painter_.drawPath(barPath(rect, leftCorner, rightCorner));
}

void PainterCanvas::area(const std::vector<QPointF>& corners, const Paint& paint) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brushOf(paint));
    painter_.drawPolygon(corners.data(), static_cast<int>(corners.size()));
}

void PainterCanvas::line(const std::vector<QPointF>& points, double width, const Paint& paint) {
    painter_.setPen(roundPenOf(paint, width));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawPolyline(points.data(), static_cast<int>(points.size()));
}

}  // namespace zelk
