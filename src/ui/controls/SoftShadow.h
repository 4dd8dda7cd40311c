// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickItem>

namespace zelk {

/// The blurred black shadow around a rounded panel, which lies `inset` inside the item on all sides; what the panel
/// hides is left out, so that it may be seen through. One small picture is painted and stretched between its corners,
/// by any renderer: a panel that grows keeps it. Lengths in points.
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

    /// The shadow of the smallest panel that has all four corners, a pixel to the point.
    QImage picture() const;

signals:
    void changed();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    /// In whole points: from the item's edge to where the shadow is the same all along a side.
    int border() const;
    /// Of the picture: the whole item where that has no room for two borders.
    QSize pictureSize() const;

    double inset_ = 0;
    double corner_ = 0;
    double radius_ = 0;    // how far it is blurred, to either side of the panel's edge
    double drop_ = 2;      // light falls from above
    double strength_ = 0;  // its opacity where it is full
    bool painted_ = false;
    QSize shown_;  // the size of the picture that is shown
};

}  // namespace zelk
