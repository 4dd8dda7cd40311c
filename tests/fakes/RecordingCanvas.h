// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "ui/controls/Canvas.h"

namespace zelk::fakes {

/// One call of a Canvas; what a shape does not have is 0.
struct DrawnShape {
    enum class Kind { disc, ring, arc, roundArc, bar, area, line, shadowedDisc, ellipse, image, text };

    Kind kind;
    QPointF center;
    double radius = 0;
    double width = 0;
    double start = 0;
    double span = 0;
    Paint paint;
    QRectF rect = {};  ///< of a bar, an ellipse or an image
    double leftCorner = 0;
    double rightCorner = 0;
    std::vector<QPointF> points = {};  ///< of an area or a line
    Shadow shadow = {};
    QImage image = {};
    QString text = {};
    Lettering lettering = {};
};

/// Draws nothing and remembers everything.
class RecordingCanvas : public Canvas {
public:
    bool shows(const QRectF& rect) const override { return seen.isNull() || seen.intersects(rect); }
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

    void shadowedDisc(QPointF center, double radius, const Paint& paint, const Shadow& shadow) override {
        DrawnShape& shape = add(DrawnShape::Kind::shadowedDisc, center, paint);
        shape.radius = radius;
        shape.shadow = shadow;
    }
    void ellipse(const QRectF& rect, const Paint& paint) override {
        add(DrawnShape::Kind::ellipse, {}, paint).rect = rect;
    }
    void image(const QRectF& rect, const QImage& image) override {
        DrawnShape& shape = add(DrawnShape::Kind::image, {}, {});
        shape.rect = rect;
        shape.image = image;
    }
    void text(QPointF center, const QString& text, const Lettering& lettering, const QColor& color) override {
        DrawnShape& shape = add(DrawnShape::Kind::text, center, Paint::solid(color));
        shape.text = text;
        shape.lettering = lettering;
    }
    /// Every unit of text is as wide as its size.
    double textWidth(const QString& text, const Lettering& lettering) const override {
        ++measured;
        return static_cast<double>(text.size()) * lettering.size;
    }

    QRectF seen;  ///< all there is, if null
    std::vector<DrawnShape> shapes;
    mutable int measured = 0;  ///< how often a text was

private:
    DrawnShape& add(DrawnShape::Kind kind, QPointF center, const Paint& paint) {
        return shapes.emplace_back(DrawnShape{kind, center, 0, 0, 0, 0, paint});
    }
};

}  // namespace zelk::fakes
