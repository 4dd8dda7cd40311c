// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QQuickItem>

namespace zelk {

/// A layer of the scan button, with its implicit size. Painted only when its colour, size or scale changes, into a
/// texture with linear filtering, so that it rotates and scales smoothly with every renderer.
class ScanButtonLayer : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged FINAL REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    enum Kind { Glow, Disc, Sheen, Comet };
    Q_ENUM(Kind)

    explicit ScanButtonLayer(QQuickItem* parent = nullptr);

    Kind kind() const { return kind_; }
    void setKind(Kind kind);
    /// The accent colour; unused by Disc and Sheen.
    QColor color() const { return color_; }
    void setColor(const QColor& color);

    /// Whether the point is on the disc: the corners of the square around the glow are not clickable.
    bool contains(const QPointF& point) const override;

    /// Renders the layer at `points` x `points` with `scale` pixels per point.
    QImage picture(double points, double scale) const;

signals:
    void kindChanged();
    void colorChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    void repaint();

    Kind kind_ = Glow;
    QColor color_;
    bool painted_ = false;
};

}  // namespace zelk
