// SPDX-License-Identifier: MIT
#include "ui/charts/OrbDrawing.h"

#include <array>

#include "ui/charts/Circles.h"
#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

constexpr std::array ringRadii{58.0, 65.5, 73.0};
constexpr std::array ringOpacities{0.4, 0.24, 0.12};
constexpr double ringWidth = 1.5;

}  // namespace

double OrbShape::ringRadius(int ring) {
    return ringRadii[static_cast<std::size_t>(ring)];
}
double OrbShape::ringOpacity(int ring) {
    return ringOpacities[static_cast<std::size_t>(ring)];
}

void drawOrbDisc(QPainter& painter, QPointF center, const QColor& tint) {
    constexpr double radius = OrbShape::discRadius;
    constexpr double blur = OrbShape::shadowRadius;
    drawHalo(painter, center + QPointF(0, OrbShape::shadowDrop), tint, OrbShape::shadowOpacity, radius - blur,
             radius + blur);

    const QPointF corner(radius, radius);
    fillDisc(painter, center, radius,
             linearBrush(center - corner, center + corner,
                         {{0, mix(tint, Qt::white, 0.22)}, {1, mix(tint, Qt::black, 0.16)}}));
    // A highlight along the upper edge.
    strokeCircle(
        painter, center, radius - 0.5, 1,
        linearBrush(
            center - QPointF(0, radius), center + QPointF(0, radius),
            {{0, withOpacity(Qt::white, 0.4)}, {0.45, withOpacity(Qt::white, 0)}, {1, withOpacity(Qt::white, 0)}}));
}

void drawOrbRing(QPainter& painter, QPointF center, int ring, const QColor& tint) {
    drawRing(painter, center, OrbShape::ringRadius(ring), ringWidth, withOpacity(tint, OrbShape::ringOpacity(ring)));
}

void drawAboutMark(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double radius = AboutMark::discRadius;
    drawHalo(painter, center, accent, 0.55, radius - 9, AboutMark::glowRadius);
    const QPointF corner(radius, radius);
    fillDisc(painter, center, radius,
             linearBrush(center - corner, center + corner, {{0, AccentGradient::from()}, {1, AccentGradient::to()}}));
}

}  // namespace zelk
