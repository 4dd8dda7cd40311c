// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "ui/components/Canvas.h"

namespace zelk::fakes {

/// One call of a Canvas; what a shape does not have is 0.
struct DrawnShape {
    enum class Kind { disc, ring, arc };

    Kind kind;
    QPointF center;
    double radius;
    double width = 0;
    double start = 0;
    double span = 0;
    Paint paint;
};

/// Draws nothing and remembers everything.
class RecordingCanvas : public Canvas {
public:
    void disc(QPointF center, double radius, const Paint& paint) override {
        shapes.push_back({DrawnShape::Kind::disc, center, radius, 0, 0, 0, paint});
    }
    void ring(QPointF center, double radius, double width, const Paint& paint) override {
        shapes.push_back({DrawnShape::Kind::ring, center, radius, width, 0, 0, paint});
    }
    void arc(QPointF center, double radius, double width, double start, double span, const Paint& paint) override {
        shapes.push_back({DrawnShape::Kind::arc, center, radius, width, start, span, paint});
    }

    std::vector<DrawnShape> shapes;
};

}  // namespace zelk::fakes
