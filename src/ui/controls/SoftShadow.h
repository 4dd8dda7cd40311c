// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickItem>

namespace zelk {

/// A blur is this many box blurs, so that it extends a mask by `blurPasses` times the radius.
inline constexpr int blurPasses = 3;

/// Blurs an alpha-only image in both directions by repeated box blurs of `radius` pixels, which approximates a Gaussian
/// blur and takes the same time for every radius. What would extend beyond the image is lost.
void blurMask(QImage& mask, int radius);

/// Converts a mask to black, with its alpha multiplied by `gain`, limited to 255, and then by `strength` (0 to 1).
QImage blackOf(const QImage& mask, double strength, double gain = 1);

/// The blurred black shadow of a rounded panel that is inset by `inset` on all sides of the item. Leaves out the area
/// that the panel hides, so that the panel may be translucent. Painted once at a small size and drawn as a nine-patch,
/// so that resizing the panel needs no repaint. Lengths are in points.
class SoftShadow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double inset MEMBER inset_ NOTIFY changed FINAL)
    Q_PROPERTY(double corner MEMBER corner_ NOTIFY changed FINAL)
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed FINAL)
    Q_PROPERTY(double drop MEMBER drop_ NOTIFY changed FINAL)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY changed FINAL)

public:
    explicit SoftShadow(QQuickItem* parent = nullptr);

    /// The shadow of the smallest panel that has all four corners, with one pixel per point.
    QImage picture() const;

signals:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    /// The size of the nine-patch's corners in whole points: beyond them the shadow is constant along a side.
    int border() const;
    /// The size of picture(); limited to the item, which may be too small for two corners.
    QSize pictureSize() const;

    double inset_ = 0;
    double corner_ = 0;
    double radius_ = 0;    // blur radius, to either side of the panel's edge
    double drop_ = 2;      // vertical offset, as if lit from above
    double strength_ = 0;  // maximum opacity
    bool painted_ = false;
    QSize shown_;  // size of the picture in the texture
};

}  // namespace zelk
