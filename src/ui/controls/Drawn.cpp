// SPDX-License-Identifier: MIT
#include "ui/controls/Drawn.h"

#include <QPainter>

namespace zelk {

Drawn::Drawn(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &Drawn::changed, this, [this] { update(); });
}

void Drawn::paint(QPainter* painter) {
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setPen(Qt::NoPen);
    draw(*painter);
}

}  // namespace zelk

#include "moc_Drawn.cpp"
