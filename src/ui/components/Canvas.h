// SPDX-License-Identifier: MIT
// What the anti-aliased pictures are drawn with. Drawings are functions of a Canvas, so that a test can list what they
// draw instead of looking at pixels.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <vector>

namespace zelk {

struct GradientStop {
    double at;  ///< 0 to 1 along the gradient
    QColor color;

    bool operator==(const GradientStop&) const = default;
};

/// What a shape is filled or stroked with. Points in the canvas's units, angles in degrees: 0 at three o'clock,
/// counter-clockwise.
struct Paint {
    enum class Kind { solid, linear, radial, conical };

    Kind kind = Kind::solid;
    QPointF from;       ///< start of a linear gradient; centre of the other two
    QPointF to;         ///< end of a linear gradient
    double radius = 0;  ///< of a radial gradient
    double angle = 0;   ///< where a conical gradient starts
    std::vector<GradientStop> stops;

    static Paint solid(const QColor& color);
    static Paint linear(QPointF from, QPointF to, std::vector<GradientStop> stops);
    static Paint radial(QPointF center, double radius, std::vector<GradientStop> stops);
    static Paint conical(QPointF center, double angle, std::vector<GradientStop> stops);

    bool operator==(const Paint&) const = default;
};

class Canvas {
public:
    virtual ~Canvas() = default;
    virtual void disc(QPointF center, double radius, const Paint& paint) = 0;
    /// A circle's line, `width` wide, its middle at `radius`.
    virtual void ring(QPointF center, double radius, double width, const Paint& paint) = 0;
    /// A part of such a line, with flat ends.
    virtual void arc(QPointF center, double radius, double width, double start, double span, const Paint& paint) = 0;
    /// The same with round ends, which reach half the width further.
    virtual void roundArc(QPointF center, double radius, double width, double start, double span,
                          const Paint& paint) = 0;
    /// A filled rectangle whose two left corners have one radius and its two right corners another, in points; a radius
    /// that the sides have no room for becomes as large as they have.
    virtual void bar(const QRectF& rect, double leftCorner, double rightCorner, const Paint& paint) = 0;
    /// The filled inside of a closed line through `corners`.
    virtual void area(const std::vector<QPointF>& corners, const Paint& paint) = 0;
    /// An open line through `points` with round ends and corners.
    virtual void line(const std::vector<QPointF>& points, double width, const Paint& paint) = 0;
};

}  // namespace zelk
