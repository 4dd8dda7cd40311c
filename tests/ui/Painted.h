// SPDX-License-Identifier: MIT
// Renders paint code into a transparent image, for tests that look at pixels.
#pragma once

#include <QImage>
#include <QPainter>
#include <QQuickPaintedItem>
#include <functional>

namespace zelk {

/// `size` is in points, `scale` pixels to the point.
inline QImage painted(QSize size, const std::function<void(QPainter&)>& draw, int scale = 1) {
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    draw(painter);
    return image;
}

inline QImage painted(QQuickPaintedItem& item, QSize size) {
    item.setSize(size);
    return painted(size, [&](QPainter& painter) { item.paint(&painter); });
}

/// Whether no channel of the colours differs by more than `apart`.
inline bool alike(const QColor& a, const QColor& b, int apart = 4) {
    return std::abs(a.red() - b.red()) <= apart && std::abs(a.green() - b.green()) <= apart &&
           std::abs(a.blue() - b.blue()) <= apart && std::abs(a.alpha() - b.alpha()) <= apart;
}

}  // namespace zelk
