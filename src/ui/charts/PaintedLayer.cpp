// SPDX-License-Identifier: MIT
#include "ui/charts/PaintedLayer.h"

#include "ui/charts/HouseTile.h"
#include "ui/charts/OrbDrawing.h"

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
        case PaintedLayer::Mark:
            return 2 * AboutMark::glowRadius;
        case PaintedLayer::Tile:
            return tileSide;
    }
    return 0;
}

}  // namespace

PaintedLayer::PaintedLayer(QQuickItem* parent) : Drawn(parent) {
    setImplicitSize(sideOf(kind_), sideOf(kind_));
}

void PaintedLayer::setKind(Kind kind) {
    if (kind == kind_) return;
    kind_ = kind;
    setImplicitSize(sideOf(kind), sideOf(kind));
    update();
    emit kindChanged();
}

void PaintedLayer::draw(QPainter& painter) {
    const QPointF center = boundingRect().center();
    switch (kind_) {
        case OrbDisc:
            return drawOrbDisc(painter, center, color_);
        case InnerRing:
        case MiddleRing:
        case OuterRing:
            return drawOrbRing(painter, center, kind_ - InnerRing, color_);
        case Mark:
            return drawAboutMark(painter, center, color_);
        case Tile:
            return paintHouseTile(painter, width());
    }
}

}  // namespace zelk

#include "moc_PaintedLayer.cpp"
