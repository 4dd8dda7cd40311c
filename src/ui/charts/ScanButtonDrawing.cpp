// SPDX-License-Identifier: MIT
#include "ui/charts/ScanButtonDrawing.h"

#include <QPainter>

#include "ui/charts/Circles.h"
#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

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

}  // namespace

void drawScanGlow(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double radius = ScanButtonShape::discRadius;
    drawHalo(painter, center, accent, nearOpacity, radius - nearSpread, radius + nearSpread);
    drawHalo(painter, center, accent, wideOpacity, radius - wideSpread, radius + wideSpread);
    drawRing(painter, center, ScanButtonShape::ringRadius, scanRingWidth, withOpacity(accent, scanRingOpacity));
}

void drawScanDisc(QPainter& painter, QPointF center) {
    constexpr double radius = ScanButtonShape::discRadius;
    const QPointF corner(radius, radius);
    fillDisc(painter, center, radius,
             linearBrush(center - corner, center + corner, {{0, AccentGradient::from()}, {1, AccentGradient::to()}}));

    // Lit from the upper left, with a highlight along the upper edge.
    const QPointF lit = center + QPointF(-0.32, -0.36) * radius;
    fillDisc(painter, center, radius, radialBrush(lit, 0.95 * radius, {{0, white(0.26)}, {1, white(0)}}));
    strokeCircle(painter, center, radius - 0.5, 1,
                 linearBrush(center - QPointF(0, radius), center + QPointF(0, radius),
                             {{0, white(0.45)}, {0.45, white(0)}, {1, white(0)}}));
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
