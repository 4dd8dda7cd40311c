// SPDX-License-Identifier: MIT
#include "ui/controls/Drawn.h"

#include "ui/controls/PainterCanvas.h"

namespace zelk {

Drawn::Drawn(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void Drawn::paint(QPainter* painter) {
    PainterCanvas canvas(*painter, typesetter_);
    draw(canvas);
}

}  // namespace zelk

#include "moc_Drawn.cpp"
