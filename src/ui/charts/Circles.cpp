// SPDX-License-Identifier: MIT
#include "ui/charts/Circles.h"

#include <QPainter>
#include <QPen>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

/// A brush that has faded out at both circles.
struct SoftBrush {
    QBrush brush;
    double inner;
    double outer;
};

/// Approximates a disc under a Gaussian blur by a radial gradient. Without a pass over pixels it is cheap enough to be
/// made anew in every frame while a chart is resized. Extends three standard deviations beyond the disc. It does not
/// fade out within `hidden`, which may be left out.
SoftBrush blurredDisc(QPointF center, double radius, double blur, const QColor& color, double hidden) {
    constexpr int steps = 16;
    const double deviation = std::max(blur / 2, 0.01);
    const double reach = radius + 3 * deviation;
    // The blur of a straight edge, reduced by what a disc of about the size of the blur loses even in its centre.
    const double middle = 1 - std::exp(-radius * radius / (2 * deviation * deviation));
    const auto covered = [&](double distance) {
        const double edge = 0.5 * std::erfc((distance - radius) / (std::sqrt(2.0) * deviation));
        return withOpacity(color, color.alphaF() * edge * middle);
    };
    QRadialGradient gradient(center, reach);
    gradient.setColorAt(0, covered(0));
    const double flat = std::max(0.0, radius - 3 * deviation);
    for (int step = 0; step <= steps; ++step) {
        const double distance = flat + (reach - flat) * step / steps;
        gradient.setColorAt(distance / reach, covered(distance));
    }
    gradient.setColorAt(1, withOpacity(color, 0));
    return {gradient, std::max(0.0, hidden), reach};
}

/// A circle's line as a radial gradient with antialiased edges one pixel wide. QPainter's own stroke takes six times as
/// long. `scale` is pixels per point.
SoftBrush smoothRing(QPointF center, double radius, double width, double scale, const QColor& color) {
    const double half = width / 2;
    const double edge = 0.5 / scale;
    const double hole = std::max(0.0, radius - half - edge);
    const double reach = radius + half + edge;
    // A line thinner than a pixel is drawn one pixel wide with less opacity.
    const double flat = std::abs(half - edge);
    const QColor clear = withOpacity(color, 0);
    const QColor full = withOpacity(color, color.alphaF() * std::min(1.0, half / edge));
    QRadialGradient gradient(center, reach);
    const auto put = [&](double distance, const QColor& at) {
        gradient.setColorAt(std::clamp(distance / reach, 0.0, 1.0), at);
    };
    put(hole, clear);
    put(radius - flat, full);
    put(radius + flat, full);
    put(reach, clear);
    return {gradient, hole, reach};
}

/// Fills at least the area between two circles with bands of rectangles, which takes a fraction of the time of filling
/// circles. That is invisible because the gradient fades out at both circles. Antialiasing is off, since it would show
/// the seams between bands on a scaled screen.
void fillBetween(QPainter& painter, QPointF center, const SoftBrush& soft) {
    const auto& [brush, inner, outer] = soft;
    constexpr int band = 4;
    const int bottom = static_cast<int>(std::ceil(center.y() + outer));
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int top = static_cast<int>(std::floor(center.y() - outer)); top < bottom; top += band) {
        const double above = center.y() - top;
        const double below = top + band - center.y();
        const double nearest = std::max({0.0, -above, -below});
        const double farthest = std::max(above, below);
        const double reach = std::sqrt(std::max(0.0, outer * outer - nearest * nearest));
        const double hole = farthest < inner ? std::sqrt(inner * inner - farthest * farthest) : 0;
        const int left = static_cast<int>(std::floor(center.x() - reach));
        const int right = static_cast<int>(std::ceil(center.x() + reach));
        const int holeLeft = static_cast<int>(std::ceil(center.x() - hole));
        const int holeRight = static_cast<int>(std::floor(center.x() + hole));
        if (holeLeft < holeRight) {
            painter.fillRect(left, top, holeLeft - left, band, brush);
            painter.fillRect(holeRight, top, right - holeRight, band, brush);
        } else {
            painter.fillRect(left, top, right - left, band, brush);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
}

}  // namespace

void fillDisc(QPainter& painter, QPointF center, double radius, const QBrush& brush) {
    if (radius <= 0) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(center, radius, radius);
}

void drawHalo(QPainter& painter, QPointF center, const QColor& color, double opacity, double inner, double outer) {
    // Five stops look as smooth as the curve itself.
    QGradientStops stops;
    for (const double step : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const double fallen = step * step * (3 - 2 * step);
        stops.append({(inner + step * (outer - inner)) / outer, withOpacity(color, opacity * (1 - fallen))});
    }
    fillDisc(painter, center, outer, radialBrush(center, outer, stops));
}

void drawRing(QPainter& painter, QPointF center, double radius, double width, const QColor& color) {
    if (radius <= 0) return;
    const double scale = std::abs(painter.transform().m11());  // negative where a picture is mirrored
    const SoftBrush soft = smoothRing(center, radius, width, scale, color);
    // A gradient has 1024 steps, and an edge of one pixel needs two of them.
    if (soft.outer * scale < 512)
        fillBetween(painter, center, soft);
    else
        strokeCircle(painter, center, radius, width, color);
}

void strokeCircle(QPainter& painter, QPointF center, double radius, double width, const QBrush& brush) {
    if (radius <= 0) return;
    painter.setPen(QPen(brush, width, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(center, radius, radius);
}

void drawDiscShadow(QPainter& painter, QPointF center, double radius, const QColor& color, double blur, double drop) {
    if (radius <= 0) return;
    const QPointF below = center + QPointF(0, drop);
    // The hidden part is centred on the disc, not on the shadow.
    fillBetween(painter, below, blurredDisc(below, radius, blur, color, radius - drop - 2));
}

}  // namespace zelk
