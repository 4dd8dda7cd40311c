// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QVariant>

namespace zelk {

/// Shows a QImage of a model, scaled smoothly to the item. Hidden from screen readers: the item beside it has the name.
class Picture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    // A QImage, as a QVariant because QML has no such type; other values count as null.
    Q_PROPERTY(QVariant image MEMBER image_ NOTIFY changed FINAL REQUIRED)

public:
    Picture() {
        connect(this, &Picture::changed, this, [this] { update(); });
    }

    void paint(QPainter* painter) override {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(QRectF(QPointF(), size()), image_.value<QImage>());
    }

signals:
    void changed();

private:
    QVariant image_;
};

}  // namespace zelk
