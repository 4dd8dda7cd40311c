// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QQuickItem>

class QPainter;

namespace zelk {

/// Paints the background of the application's mark: a square of `side` with rounded corners, in the accent gradient.
void paintHouseTile(QPainter& painter, double side);

/// Base of items that are painted into a texture, again only when a property, the size or the scale changes, or after
/// they were hidden: a hidden item holds no texture, since that of a page is megabytes and every visited screen is
/// kept.
/// Animations that rotate, scale or fade such an item take next to no time on the main thread.
class PaintedOnce : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit PaintedOnce(QQuickItem* parent = nullptr);

    /// Renders the item with `scale` pixels per point.
    virtual QImage picture(double scale) const = 0;

signals:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    void repaint();

    bool painted_ = false;
};

/// A layer of a module's orb or of the scan button, the disc of a welcome page, or the application's mark, with its
/// implicit size.
class PaintedLayer : public zelk::PaintedOnce {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged FINAL REQUIRED)
    // Unused by Tile, ScanDisc and ScanSheen.
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    enum Kind {
        OrbDisc,
        InnerRing,
        MiddleRing,
        OuterRing,
        IntroDisc,
        Mark,
        Tile,
        ScanGlow,
        ScanDisc,
        ScanSheen,
        ScanComet
    };
    Q_ENUM(Kind)

    explicit PaintedLayer(QQuickItem* parent = nullptr);

    Kind kind() const { return kind_; }
    void setKind(Kind kind);

    /// For ScanGlow, whether the point is on the disc: the corners of the square around it are not clickable.
    bool contains(const QPointF& point) const override;

    QImage picture(double scale) const override;

signals:
    /// Declared here because moc of Qt 6.8 cannot handle an inherited notify signal for a nested enum.
    void kindChanged();

private:
    Kind kind_ = OrbDisc;
    QColor color_;
};

}  // namespace zelk
