// SPDX-License-Identifier: MIT
// How the scan button looks, layer by layer. Each layer is painted once and kept; only whole layers are turned, scaled
// or faded, which costs the main thread next to nothing while a survey runs.
#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

namespace zelk {

/// The measures of the button, in points. All layers share one centre.
struct ScanButtonShape {
    static constexpr double frame = 264;  ///< the square that holds the glow
    static constexpr double discRadius = 92;
    static constexpr double ringRadius = 108;
    static constexpr double turningFrame = 228;  ///< the square that holds the turning decoration
};

/// The light around the disc: a near halo, a wide halo and a fine ring.
void drawScanGlow(QPainter& painter, QPointF center, const QColor& accent);

/// The disc itself, in the accent gradient.
void drawScanDisc(QPainter& painter, QPointF center);

/// What brightens the disc under the pointer.
void drawScanSheen(QPainter& painter, QPointF center);

/// A comet on the ring, its head at twelve o'clock, made to be turned clockwise.
void drawScanComet(QPainter& painter, QPointF center, const QColor& accent);

}  // namespace zelk
