// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/charts/BubbleModel.h"
#include "ui/charts/BubbleTexts.h"
#include "ui/charts/CirclePacking.h"

class QPainter;

namespace zelk {

/// The slice of each circle, by index. If several slices share an id, the first; nullptr if none has it.
using ShownSlices = std::vector<const BubbleSlice*>;

/// Both arguments must outlive the result.
ShownSlices slicesOf(const std::vector<PackedCircle>& circles, const std::vector<BubbleSlice>& slices);

struct BubbleLook {
    bool dark = true;      ///< the theme
    double textScale = 1;  ///< factor of the smallest and largest font sizes
};

/// A line of text in a bubble; empty if it does not fit.
struct BubbleText {
    QString text;
    QPointF middle;
    double size = 0;

    bool operator==(const BubbleText&) const = default;
};

/// The contents of a bubble that fit into it, in the chart's points.
struct BubbleFace {
    QRectF icon;  ///< null without one
    BubbleText label;
    BubbleText bytes;

    bool operator==(const BubbleFace&) const = default;
};

/// `widthOf` measures a text in a font and size.
BubbleFace bubbleFace(const PackedCircle& circle, const BubbleSlice& slice, double textScale,
                      const std::function<double(const QString&, BubbleFont, double)>& widthOf);

/// The indices of the circles to paint, in painting order. Skips circles without a slice and those outside `clip`; a
/// null `clip` keeps all.
std::vector<std::size_t> paintedBubbles(const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                                        const QRectF& clip);

/// Paints the circles as glass balls, later ones on top.
void drawBubbles(QPainter& painter, const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                 const std::optional<std::string>& hoveredID, const BubbleLook& look, BubbleTexts& texts);

/// Paints the focus ring of a bubble, with an outline that separates it from the bubbles below.
void drawBubbleFocus(QPainter& painter, const PackedCircle& circle, const QColor& line, const QColor& ground);

/// The area that a bubble paints, including its shadow and focus ring.
QRectF bubbleBox(const PackedCircle& circle);

}  // namespace zelk
