// SPDX-License-Identifier: MIT
#include "ui/charts/LayerDrawing.h"

#include <QPainter>

#include "ui/charts/Circles.h"
#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

constexpr double orbRingWidth = 1.5;

constexpr double nearOpacity = 0.55;
constexpr double wideOpacity = 0.3;
constexpr double scanRingOpacity = 0.42;
constexpr double nearSpread = 20;
constexpr double wideSpread = 40;
constexpr double scanRingWidth = 1.25;
constexpr double cometWidth = 3;
constexpr double cometSpan = 270;

QColor white(double opacity) {
    return withOpacity(Qt::white, opacity);
}

/// The accent gradient across the square around a circle.
QBrush accentBrush(QPointF center, double radius) {
    const QPointF corner(radius, radius);
    return linearBrush(center - corner, center + corner, {{0, AccentGradient::from()}, {1, AccentGradient::to()}});
}

/// A highlight along the upper edge of a disc.
void drawRim(QPainter& painter, QPointF center, double radius, double opacity) {
    const QPointF up(0, radius);
    strokeCircle(painter, center, radius - 0.5, 1,
                 linearBrush(center - up, center + up, {{0, white(opacity)}, {0.45, white(0)}, {1, white(0)}}));
}

}  // namespace

void drawOrbDisc(QPainter& painter, QPointF center, const QColor& tint) {
    constexpr double radius = OrbShape::discRadius;
    constexpr double blur = OrbShape::shadowRadius;
    drawHalo(painter, center + QPointF(0, OrbShape::shadowDrop), tint, OrbShape::shadowOpacity, radius - blur,
             radius + blur);

    const QPointF corner(radius, radius);
    fillDisc(painter, center, radius,
             linearBrush(center - corner, center + corner,
                         {{0, mix(tint, Qt::white, 0.22)}, {1, mix(tint, Qt::black, 0.16)}}));
    drawRim(painter, center, radius, 0.4);
}

void drawOrbRing(QPainter& painter, QPointF center, std::size_t ring, const QColor& tint) {
    drawRing(painter, center, OrbShape::ringRadii.at(ring), orbRingWidth,
             withOpacity(tint, OrbShape::ringOpacities.at(ring)));
}

void drawAboutMark(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double radius = AboutMark::discRadius;
    drawHalo(painter, center, accent, 0.55, radius - 9, AboutMark::glowRadius);
    fillDisc(painter, center, radius, accentBrush(center, radius));
}

void paintHouseTile(QPainter& painter, double side) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accentBrush({side / 2, side / 2}, side / 2));
    const double corner = side * 0.24;
    painter.drawRoundedRect(QRectF(0, 0, side, side), corner, corner);
}

void drawScanGlow(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double radius = ScanButtonShape::discRadius;
    drawHalo(painter, center, accent, nearOpacity, radius - nearSpread, radius + nearSpread);
    drawHalo(painter, center, accent, wideOpacity, radius - wideSpread, radius + wideSpread);
    drawRing(painter, center, ScanButtonShape::ringRadius, scanRingWidth, withOpacity(accent, scanRingOpacity));
}

void drawScanDisc(QPainter& painter, QPointF center) {
    constexpr double radius = ScanButtonShape::discRadius;
    fillDisc(painter, center, radius, accentBrush(center, radius));
    // Lit from the upper left.
    const QPointF lit = center + QPointF(-0.32, -0.36) * radius;
    fillDisc(painter, center, radius, radialBrush(lit, 0.95 * radius, {{0, white(0.26)}, {1, white(0)}}));
    drawRim(painter, center, radius, 0.45);
}

void drawScanSheen(QPainter& painter, QPointF center) {
    fillDisc(painter, center, ScanButtonShape::discRadius, white(0.12));
}

void drawScanComet(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double noon = 90;
    constexpr double radius = ScanButtonShape::ringRadius;
    const QColor clear = withOpacity(accent, 0);
    const QBrush tail =
        conicalBrush(center, noon, {{0, accent}, {0.25, withOpacity(accent, 0.45)}, {0.75, clear}, {1, clear}});
    painter.setPen(QPen(tail, cometWidth, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius),
                    static_cast<int>(noon * 16), static_cast<int>(cometSpan * 16));
    fillDisc(painter, center - QPointF(0, radius), cometWidth, accent);
}

}  // namespace zelk
