// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ui/charts/BubbleSlice.h"
#include "ui/charts/BubbleTexts.h"
#include "ui/charts/CirclePacking.h"

class QPainter;

namespace zelk {

/// What each circle of a map shows, in its order; of several slices with one id the first, nullptr where there is none.
using ShownSlices = std::vector<const BubbleSlice*>;

/// Both must outlive it.
ShownSlices slicesOf(const std::vector<PackedCircle>& circles, const std::vector<BubbleSlice>& slices);

struct BubbleLook {
    bool dark = true;      ///< the theme
    double textScale = 1;  ///< by which the largest texts are larger
};

/// A line of text in a bubble; empty if there is no room for one.
struct BubbleText {
    QString text;
    QPointF middle;
    double size = 0;

    bool operator==(const BubbleText&) const = default;
};

/// What a bubble has on its glass, as far as there is room, in the chart's points.
struct BubbleFace {
    QRectF icon;  ///< null without one
    BubbleText label;
    BubbleText bytes;

    bool operator==(const BubbleFace&) const = default;
};

/// `widthOf` measures a text of a kind in a size.
BubbleFace bubbleFace(const PackedCircle& circle, const BubbleSlice& slice, double textScale,
                      const std::function<double(const QString&, BubbleFont, double)>& widthOf);

/// The indices of the circles that are painted, in the order in which they are: what is neither a slice's nor seen in
/// `clip` is left out, and a null `clip` is all there is.
std::vector<std::size_t> paintedBubbles(const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                                        const QRectF& clip);

/// The circles as glass balls, later ones on top.
void drawBubbles(QPainter& painter, const std::vector<PackedCircle>& circles, const ShownSlices& slices,
                 const std::optional<std::string>& hoveredID, const BubbleLook& look, BubbleTexts& texts);

/// Where the keyboard is: a line around the ball, set off from whatever lies below it.
void drawBubbleFocus(QPainter& painter, const PackedCircle& circle, const QColor& line, const QColor& ground);

/// What a bubble draws in, with its shadow and the line around it.
QRectF bubbleBox(const PackedCircle& circle);

}  // namespace zelk
