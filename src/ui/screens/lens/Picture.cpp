// SPDX-License-Identifier: MIT
#include "ui/screens/lens/Picture.h"

#include <QPainter>
#include <utility>

namespace zelk {

Picture::Picture(QQuickItem* parent) : QQuickPaintedItem(parent) {}

void Picture::setImage(const QVariant& image) {
    QImage picture = image.value<QImage>();
    if (picture == image_) return;
    image_ = std::move(picture);
    update();
    emit imageChanged();
}

void Picture::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(QRectF(QPointF(), size()), image_);
}

}  // namespace zelk

#include "moc_Picture.cpp"
