// SPDX-License-Identifier: MIT
#include "ui/symbols/SymbolItem.h"

#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

namespace zelk {

QString symbolFile(const QString& name) {
    return QStringLiteral(":/Zelk/Symbols/%1.svg").arg(name);
}

QImage tintedSymbol(const QString& name, const QColor& color, int pixels) {
    QSvgRenderer renderer(symbolFile(name));
    if (!renderer.isValid() || pixels < 1) return {};
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

SymbolItem::SymbolItem(QQuickItem* parent) : QQuickPaintedItem(parent) {}

void SymbolItem::setName(const QString& name) {
    if (name == name_) return;
    name_ = name;
    update();
    emit nameChanged();
}

void SymbolItem::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    update();
    emit colorChanged();
}

void SymbolItem::setSize(qreal size) {
    if (size == size_) return;
    size_ = size;
    setImplicitSize(size, size);
    emit sizeChanged();
}

void SymbolItem::paint(QPainter* painter) {
    const qreal scale = painter->deviceTransform().m11();
    const int pixels = static_cast<int>(std::lround(boundingRect().width() * scale));
    painter->drawImage(boundingRect(), tintedSymbol(name_, color_, pixels));
}

}  // namespace zelk
