// SPDX-License-Identifier: MIT
// Painting of the decorations that PaintedLayer shows: a module's orb, the scan button and the application's mark. The
// painter must have antialiasing on.
#pragma once

#include <QColor>
#include <QPointF>
#include <array>
#include <cstddef>

class QPainter;

namespace zelk {

/// The dimensions of an orb, in points. All parts but the shadow share one centre.
struct OrbShape {
    static constexpr double frame = 150;
    static constexpr double discRadius = 52;
    static constexpr double shadowOpacity = 0.5;
    static constexpr double shadowRadius = 20;  ///< extent of the blur beyond the disc
    static constexpr double shadowDrop = 8;
    static constexpr std::array ringRadii{58.0, 65.5, 73.0};
    static constexpr std::array ringOpacities{0.4, 0.24, 0.12};
    /// The square that also holds the shadow.
    static constexpr double shadowFrame = 2 * (discRadius + shadowRadius + shadowDrop);
};

/// Paints the disc in the module's colour, with its shadow.
void drawOrbDisc(QPainter& painter, QPointF center, const QColor& tint);

/// Paints a ring around the disc; 0 is the innermost.
void drawOrbRing(QPainter& painter, QPointF center, std::size_t ring, const QColor& tint);

/// The dimensions of the mark of the About window, a disc in the accent gradient within a glow, in points.
struct AboutMark {
    static constexpr double discRadius = 39;
    static constexpr double glowRadius = 48;
};

/// Paints the mark of the About window.
void drawAboutMark(QPainter& painter, QPointF center, const QColor& accent);

/// Paints the background of the app's mark: a square of `side` with rounded corners, in the accent gradient. Turns
/// antialiasing on itself.
void paintHouseTile(QPainter& painter, double side);

/// The dimensions of the scan button, in points. All layers share one centre.
struct ScanButtonShape {
    static constexpr double frame = 264;  ///< the square that holds the glow
    static constexpr double discRadius = 92;
    static constexpr double ringRadius = 108;
    static constexpr double turningFrame = 228;  ///< the square that holds the rotating decoration
};

/// Paints the glow around the scan button's disc: a near halo, a wide halo and a fine ring.
void drawScanGlow(QPainter& painter, QPointF center, const QColor& accent);

/// Paints the scan button's disc, in the accent gradient.
void drawScanDisc(QPainter& painter, QPointF center);

/// Paints the overlay that brightens the disc on hover.
void drawScanSheen(QPainter& painter, QPointF center);

/// Paints an arc with a fading tail on the ring, its head at twelve o'clock, to be rotated clockwise.
void drawScanComet(QPainter& painter, QPointF center, const QColor& accent);

}  // namespace zelk
