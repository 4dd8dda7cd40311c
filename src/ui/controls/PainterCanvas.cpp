// SPDX-License-Identifier: MIT
#include "ui/controls/PainterCanvas.h"

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

#include "ui/controls/Typesetter.h"
#include "ui/theme/ZelkTheme.h"

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

/// A disc blurred by a Gauss curve, as a gradient from its middle: without a pass over pixels, so that a chart that is
/// resized can have new ones with every frame. It reaches three deviations further than the disc.
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
    /// What is left of the colour at this distance from the middle: the curve across a straight edge, less what a
    /// disc not much larger than the blur loses even in its middle.
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

/// A circle's line as a gradient from its middle with edges one pixel wide: the toolkit's own line takes six times as
/// long.
class SmoothRing {
public:
    /// Of the reach in pixels: a gradient has 1024 steps from its middle on, and an edge needs two of them.
    static constexpr double finest = 512;

    /// `scale` is pixels to the point.
    SmoothRing(double radius, double width, double scale, const QColor& color)
        : radius_(radius), half_(width / 2), edge_(0.5 / scale), color_(color) {}

    double reach() const { return radius_ + half_ + edge_; }
    double hole() const { return std::max(0.0, radius_ - half_ - edge_); }

    QBrush at(QPointF center) const {
        // A line thinner than a pixel covers a part of it.
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

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter)
    : painter_(painter), own_(std::make_unique<Typesetter>()), typesetter_(*own_) {
    prepare();
}

PainterCanvas::PainterCanvas(QPainter& painter, Typesetter& typesetter) : painter_(painter), typesetter_(typesetter) {
    prepare();
}

PainterCanvas::~PainterCanvas() = default;

void PainterCanvas::prepare() {
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
}

bool PainterCanvas::shows(const QRectF& rect) const {
    return !painter_.hasClipping() || painter_.clipBoundingRect().intersects(rect);
}

void PainterCanvas::disc(QPointF center, double radius, const Paint& paint) {
    if (radius <= 0) return;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brushOf(paint));
    painter_.drawEllipse(center, radius, radius);
}

void PainterCanvas::shadowedDisc(QPointF center, double radius, const Paint& paint, const Shadow& shadow) {
    if (radius <= 0) return;
    const BlurredDisc blurred(radius, shadow.blur, shadow.color);
    const QPointF below = center + shadow.offset;
    // What the disc covers for certain may be left out: around its own middle, which is not the shadow's.
    const double covered = radius - std::hypot(shadow.offset.x(), shadow.offset.y()) - 2;
    fillBetween(below, std::max(0.0, covered), blurred.reach(), blurred.at(below));
    disc(center, radius, paint);
}

/// Fills at least what lies between two circles, in bands: the gradient has faded out at both, and rectangles without
/// smooth edges take a fraction of what circles would. On a scaled screen smooth ones would show their seams.
void PainterCanvas::fillBetween(QPointF center, double inner, double outer, const QBrush& brush) {
    constexpr int band = 4;
    const int bottom = static_cast<int>(std::ceil(center.y() + outer));
    painter_.setRenderHint(QPainter::Antialiasing, false);
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
            painter_.fillRect(left, top, holeLeft - left, band, brush);
            painter_.fillRect(holeRight, top, right - holeRight, band, brush);
        } else {
            painter_.fillRect(left, top, right - left, band, brush);
        }
    }
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterCanvas::ellipse(const QRectF& rect, const Paint& paint) {
    if (rect.isEmpty()) return;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brushOf(paint));
    painter_.drawEllipse(rect);
}

void PainterCanvas::ring(QPointF center, double radius, double width, const Paint& paint) {
    if (radius <= 0) return;
    const double scale = painter_.transform().m11();
    const SmoothRing soft(radius, width, scale, paint.stops.front().color);
    if (paint.kind == Paint::Kind::solid && soft.reach() * scale < SmoothRing::finest) {
        fillBetween(center, soft.hole(), soft.reach(), soft.at(center));
        return;
    }
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

void PainterCanvas::image(const QRectF& rect, const QImage& image) {
    painter_.drawImage(rect, image);
}

void PainterCanvas::text(QPointF center, const QString& text, const Lettering& lettering, const QColor& color) {
    typesetter_.write(painter_, center, text, lettering, color);
}

double PainterCanvas::textWidth(const QString& text, const Lettering& lettering) const {
    return typesetter_.width(text, lettering);
}

}  // namespace zelk
