// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QConicalGradient>
#include <QLinearGradient>
#include <QPointF>
#include <QRadialGradient>

namespace zelk {

/// Gradient brushes as one expression. Points are in the painter's units, stops from 0 to 1.
inline QBrush linearBrush(QPointF from, QPointF to, const QGradientStops& stops) {
    QLinearGradient gradient(from, to);
    gradient.setStops(stops);
    return gradient;
}
inline QBrush radialBrush(QPointF center, double radius, const QGradientStops& stops) {
    QRadialGradient gradient(center, radius);
    gradient.setStops(stops);
    return gradient;
}
/// Runs counter-clockwise from `start` in degrees, where 0 is three o'clock.
inline QBrush conicalBrush(QPointF center, double start, const QGradientStops& stops) {
    QConicalGradient gradient(center, start);
    gradient.setStops(stops);
    return gradient;
}

}  // namespace zelk
