// SPDX-License-Identifier: MIT
// What the anti-aliased pictures are drawn with. Drawings are functions of a Canvas, so that a test can list what they
// draw instead of looking at pixels.
#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QString>
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

/// What a shape throws: itself in one colour, moved by `offset` and blurred over `blur` to either side of its edge.
struct Shadow {
    QColor color;
    double blur = 0;
    QPointF offset;

    bool operator==(const Shadow&) const = default;
};

/// How a text is written, in the system's font. Sizes are in the canvas's units; a canvas may write a size that falls
/// between two whole ones as the nearer of them, and measures it so too.
struct Lettering {
    enum class Weight { medium, semibold };

    double size = 0;
    Weight weight = Weight::medium;
    bool rounded = false;  ///< in the system's face with round ends, where it has one

    bool operator==(const Lettering&) const = default;
};

class Canvas {
public:
    virtual ~Canvas() = default;
    /// False if nothing in this rectangle will be seen, so that a drawing can leave out what lies there.
    virtual bool shows(const QRectF& rect) const = 0;
    virtual void disc(QPointF center, double radius, const Paint& paint) = 0;
    /// An opaque disc and, below it, its shadow.
    virtual void shadowedDisc(QPointF center, double radius, const Paint& paint, const Shadow& shadow) = 0;
    /// The filled ellipse in this rectangle.
    virtual void ellipse(const QRectF& rect, const Paint& paint) = 0;
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
    /// The whole image, stretched or shrunk to this rectangle.
    virtual void image(const QRectF& rect, const QImage& image) = 0;
    /// One line of text with its middle at `center`.
    virtual void text(QPointF center, const QString& text, const Lettering& lettering, const QColor& color) = 0;
    /// How wide that would be.
    virtual double textWidth(const QString& text, const Lettering& lettering) const = 0;
};

}  // namespace zelk
