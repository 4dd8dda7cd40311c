// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "ui/controls/Canvas.h"

class QBrush;
class QPainter;

namespace zelk {

class Typesetter;

/// Draws with a QPainter, anti-aliased; a circle without a positive radius is nothing. Both must outlive it.
class PainterCanvas : public Canvas {
public:
    explicit PainterCanvas(QPainter& painter);
    /// Writes with what a canvas before it has shaped.
    PainterCanvas(QPainter& painter, Typesetter& typesetter);
    ~PainterCanvas() override;

    bool shows(const QRectF& rect) const override;
    void disc(QPointF center, double radius, const Paint& paint) override;
    void shadowedDisc(QPointF center, double radius, const Paint& paint, const Shadow& shadow) override;
    void ellipse(const QRectF& rect, const Paint& paint) override;
    void ring(QPointF center, double radius, double width, const Paint& paint) override;
    void arc(QPointF center, double radius, double width, double start, double span, const Paint& paint) override;
    void roundArc(QPointF center, double radius, double width, double start, double span, const Paint& paint) override;
    void bar(const QRectF& rect, double leftCorner, double rightCorner, const Paint& paint) override;
    void area(const std::vector<QPointF>& corners, const Paint& paint) override;
    void line(const std::vector<QPointF>& points, double width, const Paint& paint) override;
    void image(const QRectF& rect, const QImage& image) override;
    void text(QPointF center, const QString& text, const Lettering& lettering, const QColor& color) override;
    double textWidth(const QString& text, const Lettering& lettering) const override;

private:
    void prepare();
    void fillBetween(QPointF center, double inner, double outer, const QBrush& brush);
    void strokeArc(QPointF center, double radius, double start, double span);

    QPainter& painter_;
    std::unique_ptr<Typesetter> own_;
    Typesetter& typesetter_;
};

}  // namespace zelk
