// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QPointF>
#include <QQuickItem>

namespace zelk {

/// The light in a module's colour behind its orb, on the ground that it stands on: an opaque picture of the item's
/// size. Light this faint spreads a few dozen shades over hundreds of pixels, so it is blended with the ground before
/// it is rounded to shades, and dithered: no bands are seen, and no channel is lost before the others.
class ModuleGlow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    // In the item's points.
    Q_PROPERTY(QPointF middle MEMBER middle_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor ground MEMBER ground_ NOTIFY changed FINAL)
    // Whether the ground is.
    Q_PROPERTY(bool dark MEMBER dark_ NOTIFY changed FINAL)

public:
    /// Where the light has ended, in points.
    static constexpr double endRadius = 520;
    /// Of the colour in the middle.
    static double opacity(bool dark) { return dark ? 0.18 : 0.12; }

    explicit ModuleGlow(QQuickItem* parent = nullptr);

    /// The picture at `scale` pixels to the point.
    QImage picture(double scale) const;

signals:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    void repaint();

    QPointF middle_;
    QColor color_;
    QColor ground_;
    bool dark_ = true;
    bool painted_ = false;
};

}  // namespace zelk
