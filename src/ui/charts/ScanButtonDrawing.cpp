// SPDX-License-Identifier: MIT
#include "ui/charts/ScanButtonDrawing.h"

#include <array>
#include <vector>

#include "ui/controls/Canvas.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

constexpr double nearOpacity = 0.55;
constexpr double wideOpacity = 0.3;
constexpr double ringOpacity = 0.42;
constexpr double nearSpread = 20;
constexpr double wideSpread = 40;
constexpr double scanRingWidth = 1.25;
constexpr double cometWidth = 3;
constexpr double cometSpan = 270;

/// A blurred disc: full inside, half at the button's edge, nothing `spread` beyond it, along a smooth step. Five points
/// of the step are as smooth to the eye as the curve itself.
void drawHalo(Canvas& canvas, QPointF center, const QColor& accent, double opacity, double spread) {
    constexpr std::array steps{0.0, 0.25, 0.5, 0.75, 1.0};
    const double inner = ScanButtonShape::discRadius - spread;
    const double outer = ScanButtonShape::discRadius + spread;
    std::vector<GradientStop> stops;
    for (const double step : steps) {
        const double fallen = step * step * (3 - 2 * step);
        stops.push_back({(inner + step * (outer - inner)) / outer, withOpacity(accent, opacity * (1 - fallen))});
    }
    canvas.disc(center, outer, Paint::radial(center, outer, std::move(stops)));
}

QColor white(double opacity) {
    return withOpacity(Qt::white, opacity);
}

}  // namespace

void drawScanGlow(Canvas& canvas, QPointF center, const QColor& accent) {
    drawHalo(canvas, center, accent, nearOpacity, nearSpread);
    drawHalo(canvas, center, accent, wideOpacity, wideSpread);
    canvas.ring(center, ScanButtonShape::ringRadius, scanRingWidth, Paint::solid(withOpacity(accent, ringOpacity)));
}

void drawScanDisc(Canvas& canvas, QPointF center) {
    constexpr double radius = ScanButtonShape::discRadius;
    const QPointF corner(radius, radius);
    canvas.disc(
        center, radius,
        Paint::linear(center - corner, center + corner, {{0, AccentGradient::from()}, {1, AccentGradient::to()}}));

    // Light falls on it from the upper left, and catches its upper edge.
    const QPointF lit = center + QPointF(-0.32, -0.36) * radius;
    canvas.disc(center, radius, Paint::radial(lit, 0.95 * radius, {{0, white(0.26)}, {1, white(0)}}));
    canvas.ring(center, radius - 0.5, 1,
                Paint::linear(center - QPointF(0, radius), center + QPointF(0, radius),
                              {{0, white(0.45)}, {0.45, white(0)}, {1, white(0)}}));
}

void drawScanSheen(Canvas& canvas, QPointF center) {
    canvas.disc(center, ScanButtonShape::discRadius, Paint::solid(white(0.12)));
}

void drawScanComet(Canvas& canvas, QPointF center, const QColor& accent) {
    constexpr double noon = 90;
    const QColor clear = withOpacity(accent, 0);
    canvas.arc(
        center, ScanButtonShape::ringRadius, cometWidth, noon, cometSpan,
        Paint::conical(center, noon, {{0, accent}, {0.25, withOpacity(accent, 0.45)}, {0.75, clear}, {1, clear}}));
    canvas.disc(center - QPointF(0, ScanButtonShape::ringRadius), cometWidth, Paint::solid(accent));
}

}  // namespace zelk
