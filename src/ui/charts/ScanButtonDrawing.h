// SPDX-License-Identifier: MIT
// Painting of the scan button's layers. Each is painted once; animations only rotate, scale or fade whole layers, which
// takes next to no time on the main thread while a survey runs.
#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

namespace zelk {

/// The dimensions of the button, in points. All layers share one centre.
struct ScanButtonShape {
    static constexpr double frame = 264;  ///< the square that holds the glow
    static constexpr double discRadius = 92;
    static constexpr double ringRadius = 108;
    static constexpr double turningFrame = 228;  ///< the square that holds the rotating decoration
};

/// Paints the glow around the disc: a near halo, a wide halo and a fine ring.
void drawScanGlow(QPainter& painter, QPointF center, const QColor& accent);

/// Paints the disc, in the accent gradient.
void drawScanDisc(QPainter& painter, QPointF center);

/// Paints the overlay that brightens the disc on hover.
void drawScanSheen(QPainter& painter, QPointF center);

/// Paints an arc with a fading tail on the ring, its head at twelve o'clock, to be rotated clockwise.
void drawScanComet(QPainter& painter, QPointF center, const QColor& accent);

}  // namespace zelk
