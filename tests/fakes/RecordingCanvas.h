// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "ui/components/Canvas.h"

namespace zelk::fakes {

/// One call of a Canvas; what a shape does not have is 0.
struct DrawnShape {
    enum class Kind { disc, ring, arc, roundArc, bar, area, line };

    Kind kind;
    QPointF center;
    double radius = 0;
    double width = 0;
    double start = 0;
    double span = 0;
    Paint paint;
    QRectF rect = {};  ///< of a bar
    double leftCorner = 0;
    double rightCorner = 0;
    std::vector<QPointF> points = {};  ///< of an area or a line
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
    void roundArc(QPointF center, double radius, double width, double start, double span, const Paint& paint) override {
        shapes.push_back({DrawnShape::Kind::roundArc, center, radius, width, start, span, paint});
    }
    void bar(const QRectF& rect, double leftCorner, double rightCorner, const Paint& paint) override {
        shapes.push_back({DrawnShape::Kind::bar, {}, 0, 0, 0, 0, paint, rect, leftCorner, rightCorner});
    }
    void area(const std::vector<QPointF>& corners, const Paint& paint) override {
        shapes.push_back({DrawnShape::Kind::area, {}, 0, 0, 0, 0, paint, {}, 0, 0, corners});
    }
    void line(const std::vector<QPointF>& points, double width, const Paint& paint) override {
        shapes.push_back({DrawnShape::Kind::line, {}, 0, width, 0, 0, paint, {}, 0, 0, points});
    }

    std::vector<DrawnShape> shapes;
};

}  // namespace zelk::fakes
