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

/// Approximates a disc under a Gaussian blur by a radial gradient. Without a pass over pixels it is cheap enough to be
/// made anew in every frame while a chart is resized. Extends three standard deviations beyond the disc.
class BlurredDisc {
public:
    BlurredDisc(double radius, double blur, const QColor& color)
        : radius_(radius), deviation_(std::max(blur / 2, 0.01)), reach_(radius + 3 * deviation_), color_(color) {}

    double reach() const { return reach_; }

    QBrush at(QPointF center) const {
        QRadialGradient gradient(center, reach_);
        gradient.setColorAt(0, covered(0));
        constexpr int steps = 16;
        const double inner = std::max(0.0, radius_ - 3 * deviation_);
        for (int step = 0; step <= steps; ++step) {
            const double distance = inner + (reach_ - inner) * step / steps;
            gradient.setColorAt(distance / reach_, covered(distance));
        }
        gradient.setColorAt(1, withOpacity(color_, 0));
        return QBrush(gradient);
    }

private:
    /// The colour at this distance from the centre: the blur of a straight edge, reduced by what a disc of about the
    /// size of the blur loses even in its centre.
    QColor covered(double distance) const {
        const double edge = 0.5 * std::erfc((distance - radius_) / (std::sqrt(2.0) * deviation_));
        const double middle = 1 - std::exp(-radius_ * radius_ / (2 * deviation_ * deviation_));
        return withOpacity(color_, color_.alphaF() * edge * middle);
    }

    double radius_;
    double deviation_;
    double reach_;
    QColor color_;
};

/// Strokes a circle as a radial gradient with antialiased edges one pixel wide. QPainter's own stroke takes six times
/// as long.
class SmoothRing {
public:
    /// The largest reach in pixels: a gradient has 1024 steps, and an edge of one pixel needs two of them.
    static constexpr double finest = 512;

    /// `scale` is pixels per point.
    SmoothRing(double radius, double width, double scale, const QColor& color)
        : radius_(radius), half_(width / 2), edge_(0.5 / scale), color_(color) {}

    double reach() const { return radius_ + half_ + edge_; }
    double hole() const { return std::max(0.0, radius_ - half_ - edge_); }

    QBrush at(QPointF center) const {
        // A line thinner than a pixel is drawn one pixel wide with less opacity.
        const double flat = std::abs(half_ - edge_);
        const QColor clear = withOpacity(color_, 0);
        const QColor full = withOpacity(color_, color_.alphaF() * std::min(1.0, half_ / edge_));
        QRadialGradient gradient(center, reach());
        const auto put = [&](double distance, const QColor& color) {
            gradient.setColorAt(std::clamp(distance / reach(), 0.0, 1.0), color);
        };
        put(hole(), clear);
        put(radius_ - flat, full);
        put(radius_ + flat, full);
        put(reach(), clear);
        return QBrush(gradient);
    }

private:
    double radius_;
    double half_;
    double edge_;
    QColor color_;
};

/// Fills at least the area between two circles with bands of rectangles, which takes a fraction of the time of filling
/// circles. That is invisible because the gradient fades out at both circles. Antialiasing is off, since it would show
/// the seams between bands on a scaled screen.
void fillBetween(QPainter& painter, QPointF center, double inner, double outer, const QBrush& brush) {
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
    const SmoothRing soft(radius, width, scale, color);
    if (soft.reach() * scale < SmoothRing::finest)
        fillBetween(painter, center, soft.hole(), soft.reach(), soft.at(center));
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
    const BlurredDisc blurred(radius, blur, color);
    const QPointF below = center + QPointF(0, drop);
    // The hidden part is centred on the disc, not on the shadow.
    const double hidden = radius - drop - 2;
    fillBetween(painter, below, std::max(0.0, hidden), blurred.reach(), blurred.at(below));
}

}  // namespace zelk
