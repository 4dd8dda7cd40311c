// SPDX-License-Identifier: MIT
// How a module's orb, the light behind it and the marks of the house look. Each draws with a painter that is
// anti-aliased.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>

class QPainter;

namespace zelk {

/// The measures of an orb, in points. Everything shares one centre, but for the shadow.
struct OrbShape {
    static constexpr double frame = 150;
    static constexpr double discRadius = 52;
    static constexpr double shadowOpacity = 0.5;
    static constexpr double shadowRadius = 20;  ///< how far the blur reaches beyond the disc
    static constexpr double shadowDrop = 8;
    static constexpr int rings = 3;
    static double ringRadius(int ring);
    static double ringOpacity(int ring);
    /// The square that holds the shadow too.
    static constexpr double shadowFrame = 2 * (discRadius + shadowRadius + shadowDrop);
};

/// The disc in the module's colour, and its shadow.
void drawOrbDisc(QPainter& painter, QPointF center, const QColor& tint);

/// One of the rings around it, counted from the inmost.
void drawOrbRing(QPainter& painter, QPointF center, int ring, const QColor& tint);

/// The light in the colour of the module behind its first face. Opacity of its middle by theme; in points.
struct ModuleGlow {
    static constexpr double endRadius = 520;
    static double opacity(bool dark) { return dark ? 0.18 : 0.12; }
};
void drawModuleGlow(QPainter& painter, QPointF center, const QColor& tint, bool dark);

/// The mark of the About window: a disc in the accent gradient inside a glow. In points.
struct AboutMark {
    static constexpr double discRadius = 39;
    static constexpr double glowRadius = 48;
};
void drawAboutMark(QPainter& painter, QPointF center, const QColor& accent);

}  // namespace zelk
