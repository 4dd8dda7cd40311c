// SPDX-License-Identifier: MIT
// Circles as the charts need them: halos, and lines and shadows that cost a fraction of the toolkit's own. A circle
// without a positive radius is nothing. Lengths in the painter's units.
#pragma once

#include <QBrush>
#include <QColor>
#include <QPointF>

class QPainter;

namespace zelk {

void fillDisc(QPainter& painter, QPointF center, double radius, const QBrush& brush);

/// A disc that is blurred: full until `inner`, nothing from `outer` on, along a smooth step between.
void drawHalo(QPainter& painter, QPointF center, const QColor& color, double opacity, double inner, double outer);

/// A circle's line, its middle at `radius`.
void drawRing(QPainter& painter, QPointF center, double radius, double width, const QColor& color);

/// The same in a gradient.
void strokeCircle(QPainter& painter, QPointF center, double radius, double width, const QBrush& brush);

/// The shadow of an opaque disc at `center`, `drop` below it and blurred over `blur` to either side of its edge. What
/// the disc hides for certain may be left out.
void drawDiscShadow(QPainter& painter, QPointF center, double radius, const QColor& color, double blur, double drop);

}  // namespace zelk
