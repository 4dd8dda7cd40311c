// SPDX-License-Identifier: MIT
#include "ui/charts/PaintedLayer.h"

#include "ui/charts/HouseTile.h"
#include "ui/charts/OrbDrawing.h"
#include "ui/controls/PainterCanvas.h"

namespace zelk {

namespace {

constexpr double tileSide = 28;

double sideOf(PaintedLayer::Kind kind) {
    switch (kind) {
        case PaintedLayer::OrbDisc:
            return OrbShape::shadowFrame;
        case PaintedLayer::InnerRing:
        case PaintedLayer::MiddleRing:
        case PaintedLayer::OuterRing:
            return OrbShape::frame;
        case PaintedLayer::Glow:
            return 2 * ModuleGlow::endRadius;
        case PaintedLayer::Mark:
            return 2 * AboutMark::glowRadius;
        case PaintedLayer::Tile:
            return tileSide;
    }
    return 0;
}

}  // namespace

PaintedLayer::PaintedLayer(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setImplicitSize(sideOf(kind_), sideOf(kind_));
}

void PaintedLayer::setKind(Kind kind) {
    if (kind == kind_) return;
    kind_ = kind;
    setImplicitSize(sideOf(kind), sideOf(kind));
    update();
    emit kindChanged();
}

void PaintedLayer::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    update();
    emit colorChanged();
}

void PaintedLayer::setDark(bool dark) {
    if (dark == dark_) return;
    dark_ = dark;
    update();
    emit darkChanged();
}

void PaintedLayer::paint(QPainter* painter) {
    PainterCanvas canvas(*painter);
    const QPointF center = boundingRect().center();
    switch (kind_) {
        case OrbDisc:
            return drawOrbDisc(canvas, center, color_);
        case InnerRing:
        case MiddleRing:
        case OuterRing:
            return drawOrbRing(canvas, center, kind_ - InnerRing, color_);
        case Glow:
            return drawModuleGlow(canvas, center, color_, dark_);
        case Mark:
            return drawAboutMark(canvas, center, color_);
        case Tile:
            return paintHouseTile(*painter, width());
    }
}

}  // namespace zelk

#include "moc_PaintedLayer.cpp"
