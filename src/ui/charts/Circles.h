// SPDX-License-Identifier: MIT
// Circles for the charts: halos, and rings and shadows that cost a fraction of QPainter's own. Nothing is drawn unless
// the radius is positive. Lengths are in the painter's units.
#pragma once

#include <QBrush>
#include <QColor>
#include <QPointF>

class QPainter;

namespace zelk {

void fillDisc(QPainter& painter, QPointF center, double radius, const QBrush& brush);

/// Fills a disc with a soft edge: `opacity` up to `inner`, fading along a smoothstep to 0 at `outer`.
void drawHalo(QPainter& painter, QPointF center, const QColor& color, double opacity, double inner, double outer);

/// Strokes a circle whose line is centred on `radius`.
void drawRing(QPainter& painter, QPointF center, double radius, double width, const QColor& color);

/// Like drawRing(), with any brush.
void strokeCircle(QPainter& painter, QPointF center, double radius, double width, const QBrush& brush);

/// Paints the shadow of an opaque disc at `center`, shifted down by `drop` and blurred by `blur` to either side of its
/// edge. The part that the disc hides may be left out.
void drawDiscShadow(QPainter& painter, QPointF center, double radius, const QColor& color, double blur, double drop);

}  // namespace zelk
