// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QQuickPaintedItem>

namespace zelk {

/// One picture of the navigation in the size that it needs. It is painted when its colour changes; what moves is the
/// whole layer.
class PaintedLayer : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged FINAL REQUIRED)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL REQUIRED)
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged FINAL)

public:
    enum Kind { OrbDisc, InnerRing, MiddleRing, OuterRing, Glow, Mark, Tile };
    Q_ENUM(Kind)

    explicit PaintedLayer(QQuickItem* parent = nullptr);

    Kind kind() const { return kind_; }
    void setKind(Kind kind);
    QColor color() const { return color_; }
    void setColor(const QColor& color);
    /// What it stands on; only the glow asks.
    bool dark() const { return dark_; }
    void setDark(bool dark);

    void paint(QPainter* painter) override;

signals:
    void kindChanged();
    void colorChanged();
    void darkChanged();

private:
    Kind kind_ = OrbDisc;
    QColor color_;
    bool dark_ = true;
};

}  // namespace zelk
