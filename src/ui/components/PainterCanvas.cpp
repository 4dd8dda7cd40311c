// SPDX-License-Identifier: MIT
#include "ui/components/PainterCanvas.h"

#include <QBrush>
#include <QConicalGradient>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRadialGradient>
#include <QRectF>
#include <QRegion>
#include <algorithm>
#include <cmath>

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

/// The whole points inside.
QRect innerRect(const QRectF& rect) {
    const QPoint topLeft(static_cast<int>(std::ceil(rect.left())), static_cast<int>(std::ceil(rect.top())));
    const QPoint end(static_cast<int>(std::floor(rect.right())), static_cast<int>(std::floor(rect.bottom())));
    return {topLeft, end - QPoint(1, 1)};
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

}  // namespace

PainterCanvas::PainterCanvas(QPainter& painter) : painter_(painter) {
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
    const QBrush brush = blurred.at(below);
    // Whole rectangles around what the disc covers for certain: the gradient has faded out at their outer sides, and
    // filling them takes a fraction of what a smooth circle would.
    const QRect outer = around(below, blurred.reach()).toAlignedRect();
    const double half = radius / std::sqrt(2.0) - 2;
    const QRect inner = half > 0 ? innerRect(around(center, half)) : QRect();
    painter_.setRenderHint(QPainter::Antialiasing, false);  // on a scaled screen their seams would show
    for (const QRect& rect : QRegion(outer) - QRegion(inner)) painter_.fillRect(rect, brush);
    painter_.setRenderHint(QPainter::Antialiasing);
    disc(center, radius, paint);
}

void PainterCanvas::ellipse(const QRectF& rect, const Paint& paint) {
    if (rect.isEmpty()) return;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(brushOf(paint));
    painter_.drawEllipse(rect);
}

void PainterCanvas::ring(QPointF center, double radius, double width, const Paint& paint) {
    if (radius <= 0) return;
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

const QFont& PainterCanvas::fontOf(const Lettering& lettering) const {
    // Whole sizes: each other one would be a font of its own, and a chart that grows would make dozens a second.
    Lettering whole = lettering;
    whole.size = std::max(1.0, std::round(lettering.size));
    for (const auto& [known, font] : fonts_)
        if (known == whole) return font;

    QFont font = QGuiApplication::font();
#ifdef Q_OS_MACOS
    if (whole.rounded) font.setFamilies({QStringLiteral("SF Pro Rounded"), font.family()});
#endif
    font.setPixelSize(static_cast<int>(whole.size));
    font.setWeight(whole.weight == Lettering::Weight::semibold ? QFont::DemiBold : QFont::Medium);
    return fonts_.emplace_back(whole, font).second;
}

void PainterCanvas::text(QPointF center, const QString& text, const Lettering& lettering, const QColor& color) {
    const QFont& font = fontOf(lettering);
    const QFontMetricsF metrics(font);
    painter_.setFont(font);
    painter_.setPen(color);
    painter_.drawText(
        center + QPointF(-metrics.horizontalAdvance(text) / 2, (metrics.ascent() - metrics.descent()) / 2), text);
}

double PainterCanvas::textWidth(const QString& text, const Lettering& lettering) const {
    return QFontMetricsF(fontOf(lettering)).horizontalAdvance(text);
}

}  // namespace zelk
