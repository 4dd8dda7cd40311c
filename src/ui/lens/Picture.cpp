// SPDX-License-Identifier: MIT
#include "ui/lens/Picture.h"

#include <QPainter>

namespace zelk {

Picture::Picture(QQuickItem* parent) : QQuickPaintedItem(parent) {}

void Picture::setImage(const QImage& image) {
    if (image == image_) return;
    image_ = image;
    update();
    emit imageChanged();
}

void Picture::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(QRectF(QPointF(), size()), image_);
}

}  // namespace zelk
