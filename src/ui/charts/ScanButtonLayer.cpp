// SPDX-License-Identifier: MIT
#include "ui/charts/ScanButtonLayer.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <cmath>

#include "ui/charts/ScanButtonDrawing.h"

namespace zelk {

namespace {

double sideOf(ScanButtonLayer::Kind kind) {
    switch (kind) {
        case ScanButtonLayer::Glow:
            return ScanButtonShape::frame;
        case ScanButtonLayer::Comet:
            return ScanButtonShape::turningFrame;
        case ScanButtonLayer::Disc:
        case ScanButtonLayer::Sheen:
            return 2 * ScanButtonShape::discRadius + 2;  // a point for the antialiased edge
    }
    return 0;
}

void draw(QPainter& painter, QPointF center, ScanButtonLayer::Kind kind, const QColor& color) {
    switch (kind) {
        case ScanButtonLayer::Glow:
            return drawScanGlow(painter, center, color);
        case ScanButtonLayer::Disc:
            return drawScanDisc(painter, center);
        case ScanButtonLayer::Sheen:
            return drawScanSheen(painter, center);
        case ScanButtonLayer::Comet:
            return drawScanComet(painter, center, color);
    }
}

}  // namespace

ScanButtonLayer::ScanButtonLayer(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setImplicitSize(sideOf(kind_), sideOf(kind_));
}

void ScanButtonLayer::setKind(Kind kind) {
    if (kind == kind_) return;
    kind_ = kind;
    setImplicitSize(sideOf(kind), sideOf(kind));
    repaint();
    emit kindChanged();
}

void ScanButtonLayer::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    repaint();
    emit colorChanged();
}

bool ScanButtonLayer::contains(const QPointF& point) const {
    const QPointF away = point - boundingRect().center();
    return std::hypot(away.x(), away.y()) <= ScanButtonShape::discRadius;
}

QImage ScanButtonLayer::picture(double points, double scale) const {
    const int pixels = static_cast<int>(std::ceil(points * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, QPointF(points, points) / 2, kind_, color_);
    return image;
}

void ScanButtonLayer::repaint() {
    painted_ = false;
    update();
}

QSGNode* ScanButtonLayer::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    auto* node = static_cast<QSGImageNode*>(old);
    if (node == nullptr) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        painted_ = false;
    }
    if (!painted_) {
        const QImage image = picture(width(), window()->effectiveDevicePixelRatio());
        node->setTexture(window()->createTextureFromImage(image, QQuickWindow::TextureHasAlphaChannel));
        painted_ = true;
    }
    node->setRect(boundingRect());
    return node;
}

void ScanButtonLayer::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) repaint();
    QQuickItem::itemChange(change, data);
}

void ScanButtonLayer::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) repaint();
}

}  // namespace zelk

#include "moc_ScanButtonLayer.cpp"
