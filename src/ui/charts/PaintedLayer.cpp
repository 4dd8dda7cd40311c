// SPDX-License-Identifier: MIT
#include "ui/charts/PaintedLayer.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <cmath>

#include "ui/charts/LayerDrawing.h"

namespace zelk {

PaintedOnce::PaintedOnce(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &PaintedOnce::changed, this, &PaintedOnce::repaint);
}

void PaintedOnce::repaint() {
    painted_ = false;
    update();
}

QSGNode* PaintedOnce::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    if (width() <= 0 || height() <= 0) {
        delete old;
        return nullptr;
    }
    auto* node = static_cast<QSGImageNode*>(old);
    if (node == nullptr) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        painted_ = false;
    }
    if (!painted_) {
        const QImage image = picture(window()->effectiveDevicePixelRatio());
        const bool clear = image.hasAlphaChannel();
        // An opaque picture is neither rotated nor scaled, and smoothing would undo its dithering.
        node->setFiltering(clear ? QSGTexture::Linear : QSGTexture::Nearest);
        node->setTexture(window()->createTextureFromImage(
            image, clear ? QQuickWindow::TextureHasAlphaChannel : QQuickWindow::TextureIsOpaque));
        painted_ = true;
    }
    node->setRect(boundingRect());
    return node;
}

void PaintedOnce::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemDevicePixelRatioHasChanged) repaint();
    QQuickItem::itemChange(change, data);
}

void PaintedOnce::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) repaint();
}

static double sideOf(PaintedLayer::Kind kind) {
    switch (kind) {
        case PaintedLayer::OrbDisc:
            return OrbShape::shadowFrame;
        case PaintedLayer::InnerRing:
        case PaintedLayer::MiddleRing:
        case PaintedLayer::OuterRing:
            return OrbShape::frame;
        case PaintedLayer::Mark:
            return 2 * AboutMark::glowRadius;
        case PaintedLayer::Tile:
            return 28;
        case PaintedLayer::ScanGlow:
            return ScanButtonShape::frame;
        case PaintedLayer::ScanComet:
            return ScanButtonShape::turningFrame;
        case PaintedLayer::ScanDisc:
        case PaintedLayer::ScanSheen:
            return 2 * ScanButtonShape::discRadius + 2;  // a point for the antialiased edge
    }
    return 0;
}

PaintedLayer::PaintedLayer(QQuickItem* parent) : PaintedOnce(parent) {
    setImplicitSize(sideOf(kind_), sideOf(kind_));
}

void PaintedLayer::setKind(Kind kind) {
    if (kind == kind_) return;
    kind_ = kind;
    setImplicitSize(sideOf(kind), sideOf(kind));
    emit changed();
    emit kindChanged();
}

bool PaintedLayer::contains(const QPointF& point) const {
    if (kind_ != ScanGlow) return PaintedOnce::contains(point);
    const QPointF away = point - boundingRect().center();
    return std::hypot(away.x(), away.y()) <= ScanButtonShape::discRadius;
}

QImage PaintedLayer::picture(double scale) const {
    QImage image(static_cast<int>(std::ceil(width() * scale)), static_cast<int>(std::ceil(height() * scale)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return image;
}

void PaintedLayer::draw(QPainter& painter) const {
    const QPointF center = boundingRect().center();
    switch (kind_) {
        case OrbDisc:
            return drawOrbDisc(painter, center, color_);
        case InnerRing:
        case MiddleRing:
        case OuterRing:
            return drawOrbRing(painter, center, static_cast<std::size_t>(kind_ - InnerRing), color_);
        case Mark:
            return drawAboutMark(painter, center, color_);
        case Tile:
            return paintHouseTile(painter, width());
        case ScanGlow:
            return drawScanGlow(painter, center, color_);
        case ScanDisc:
            return drawScanDisc(painter, center);
        case ScanSheen:
            return drawScanSheen(painter, center);
        case ScanComet:
            return drawScanComet(painter, center, color_);
    }
}

}  // namespace zelk

#include "moc_PaintedLayer.cpp"
