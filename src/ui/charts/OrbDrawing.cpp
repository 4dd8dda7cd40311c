// SPDX-License-Identifier: MIT
#include "ui/charts/OrbDrawing.h"

#include <array>
#include <vector>

#include "ui/controls/Canvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

constexpr std::array ringRadii{58.0, 65.5, 73.0};
constexpr std::array ringOpacities{0.4, 0.24, 0.12};
constexpr double ringWidth = 1.5;

/// What a blurred disc leaves: full until `inner`, nothing from `outer` on, along a smooth step between.
Paint halo(QPointF center, const QColor& color, double opacity, double inner, double outer) {
    constexpr std::array steps{0.0, 0.25, 0.5, 0.75, 1.0};
    std::vector<GradientStop> stops;
    for (const double step : steps) {
        const double fallen = step * step * (3 - 2 * step);
        stops.push_back({(inner + step * (outer - inner)) / outer, withOpacity(color, opacity * (1 - fallen))});
    }
    return Paint::radial(center, outer, std::move(stops));
}

}  // namespace

double OrbShape::ringRadius(int ring) {
    return ringRadii[static_cast<std::size_t>(ring)];
}
double OrbShape::ringOpacity(int ring) {
    return ringOpacities[static_cast<std::size_t>(ring)];
}

void drawOrbDisc(Canvas& canvas, QPointF center, const QColor& tint) {
    constexpr double radius = OrbShape::discRadius;
    constexpr double reach = radius + OrbShape::shadowRadius;
    const QPointF dropped = center + QPointF(0, OrbShape::shadowDrop);
    canvas.disc(dropped, reach, halo(dropped, tint, OrbShape::shadowOpacity, radius - OrbShape::shadowRadius, reach));

    const QPointF corner(radius, radius);
    canvas.disc(center, radius,
                Paint::linear(center - corner, center + corner,
                              {{0, mix(tint, Qt::white, 0.22)}, {1, mix(tint, Qt::black, 0.16)}}));
    // Light catches its upper edge.
    canvas.ring(
        center, radius - 0.5, 1,
        Paint::linear(
            center - QPointF(0, radius), center + QPointF(0, radius),
            {{0, withOpacity(Qt::white, 0.4)}, {0.45, withOpacity(Qt::white, 0)}, {1, withOpacity(Qt::white, 0)}}));
}

void drawOrbRing(Canvas& canvas, QPointF center, int ring, const QColor& tint) {
    canvas.ring(center, OrbShape::ringRadius(ring), ringWidth,
                Paint::solid(withOpacity(tint, OrbShape::ringOpacity(ring))));
}

void drawModuleGlow(Canvas& canvas, QPointF center, const QColor& tint, bool dark) {
    canvas.disc(center, ModuleGlow::endRadius,
                Paint::radial(center, ModuleGlow::endRadius,
                              {{0, withOpacity(tint, ModuleGlow::opacity(dark))}, {1, withOpacity(tint, 0)}}));
}

void drawAboutMark(Canvas& canvas, QPointF center, const QColor& accent) {
    constexpr double radius = AboutMark::discRadius;
    canvas.disc(center, AboutMark::glowRadius, halo(center, accent, 0.55, radius - 9, AboutMark::glowRadius));
    const QPointF corner(radius, radius);
    canvas.disc(
        center, radius,
        Paint::linear(center - corner, center + corner, {{0, AccentGradient::from()}, {1, AccentGradient::to()}}));
}

}  // namespace zelk
