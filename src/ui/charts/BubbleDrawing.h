// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRectF>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ui/charts/BubbleSlice.h"
#include "ui/charts/CirclePacking.h"

namespace zelk {

class Canvas;

using SlicesByID = std::map<std::string, const BubbleSlice*>;

/// The slices by their ids; of several with one id the first. They must outlive it.
SlicesByID byID(const std::vector<BubbleSlice>& slices);

struct BubbleLook {
    bool dark = true;      ///< the theme
    double textScale = 1;  ///< by which the largest texts are larger
};

/// The circles as glass balls, later ones on top, each with what there is room for: icon, label, size. A circle
/// without a slice is not drawn.
void drawBubbles(Canvas& canvas, const std::vector<PackedCircle>& circles, const SlicesByID& slices,
                 const std::optional<std::string>& hoveredID, const BubbleLook& look);

/// Where the keyboard is: a line around the ball, set off from whatever lies below it.
void drawBubbleFocus(Canvas& canvas, const PackedCircle& circle, const QColor& line, const QColor& ground);

/// What a bubble draws in, with its shadow and the line around it.
QRectF bubbleBox(const PackedCircle& circle);

}  // namespace zelk
