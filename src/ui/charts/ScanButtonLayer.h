// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QQuickItem>

namespace zelk {

/// One layer of the scan button, in the size of the layer. It is painted when its colour changes and at no other time;
/// what the scene shows is the picture, filtered, so that it may be turned and scaled smoothly in every renderer.
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
    /// The accent; the disc and the sheen do without.
    QColor color() const { return color_; }
    void setColor(const QColor& color);

    /// A button is pressed on its disc, not in the corners of the square around its glow.
    bool contains(const QPointF& point) const override;

    /// The layer in `points` x `points`, at `scale` pixels to the point.
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
