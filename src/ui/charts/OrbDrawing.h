// SPDX-License-Identifier: MIT
// Painting of a module's orb and the app's mark. The painter must have antialiasing on.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>

class QPainter;

namespace zelk {

/// The dimensions of an orb, in points. All parts but the shadow share one centre.
struct OrbShape {
    static constexpr double frame = 150;
    static constexpr double discRadius = 52;
    static constexpr double shadowOpacity = 0.5;
    static constexpr double shadowRadius = 20;  ///< extent of the blur beyond the disc
    static constexpr double shadowDrop = 8;
    static constexpr int rings = 3;
    static double ringRadius(int ring);
    static double ringOpacity(int ring);
    /// The square that also holds the shadow.
    static constexpr double shadowFrame = 2 * (discRadius + shadowRadius + shadowDrop);
};

/// Paints the disc in the module's colour, with its shadow.
void drawOrbDisc(QPainter& painter, QPointF center, const QColor& tint);

/// Paints a ring around the disc; 0 is the innermost.
void drawOrbRing(QPainter& painter, QPointF center, int ring, const QColor& tint);

/// The mark of the About window: a disc in the accent gradient within a glow. In points.
struct AboutMark {
    static constexpr double discRadius = 39;
    static constexpr double glowRadius = 48;
};
void drawAboutMark(QPainter& painter, QPointF center, const QColor& accent);

}  // namespace zelk
