// SPDX-License-Identifier: MIT
#include "ui/charts/PaintedLayer.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <array>
#include <cmath>

#include "ui/charts/Circles.h"
#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

/// The dimensions of an orb, in points. All parts but the shadow share one centre.
struct OrbShape {
    static constexpr double frame = 150;
    static constexpr double discRadius = 52;
    static constexpr double shadowOpacity = 0.5;
    static constexpr double shadowRadius = 20;  ///< extent of the blur beyond the disc
    static constexpr double shadowDrop = 8;
    static constexpr std::array ringRadii{58.0, 65.5, 73.0};
    static constexpr std::array ringOpacities{0.4, 0.24, 0.12};
    /// The square that also holds the shadow.
    static constexpr double shadowFrame = 2 * (discRadius + shadowRadius + shadowDrop);
};

/// The dimensions of the scan button, in points. All layers share one centre.
struct ScanButtonShape {
    static constexpr double frame = 264;  ///< the square that holds the glow
    static constexpr double discRadius = 92;
    static constexpr double ringRadius = 108;
    static constexpr double turningFrame = 228;  ///< the square that holds the rotating decoration
};

/// The dimensions of the mark of the About window, a disc in the accent gradient within a glow, in points.
struct AboutMark {
    static constexpr double discRadius = 39;
    static constexpr double glowRadius = 48;
};

constexpr double orbRingWidth = 1.5;

constexpr double nearOpacity = 0.55;
constexpr double wideOpacity = 0.3;
constexpr double scanRingOpacity = 0.42;
constexpr double nearSpread = 20;
constexpr double wideSpread = 40;
constexpr double scanRingWidth = 1.25;
constexpr double cometWidth = 3;
constexpr double cometSpan = 270;

QColor white(double opacity) {
    return withOpacity(Qt::white, opacity);
}

/// The accent gradient across the square around a circle.
QBrush accentBrush(QPointF center, double radius) {
    const QPointF corner(radius, radius);
    return linearBrush(center - corner, center + corner, {{0, AccentGradient::from()}, {1, AccentGradient::to()}});
}

/// A highlight along the upper edge of a disc.
void drawRim(QPainter& painter, QPointF center, double radius, double opacity) {
    const QPointF up(0, radius);
    strokeCircle(painter, center, radius - 0.5, 1,
                 linearBrush(center - up, center + up, {{0, white(opacity)}, {0.45, white(0)}, {1, white(0)}}));
}

void drawOrbDisc(QPainter& painter, QPointF center, const QColor& tint) {
    constexpr double radius = OrbShape::discRadius;
    constexpr double blur = OrbShape::shadowRadius;
    drawHalo(painter, center + QPointF(0, OrbShape::shadowDrop), tint, OrbShape::shadowOpacity, radius - blur,
             radius + blur);

    const QPointF corner(radius, radius);
    fillDisc(painter, center, radius,
             linearBrush(center - corner, center + corner,
                         {{0, mix(tint, Qt::white, 0.22)}, {1, mix(tint, Qt::black, 0.16)}}));
    drawRim(painter, center, radius, 0.4);
}

void drawOrbRing(QPainter& painter, QPointF center, std::size_t ring, const QColor& tint) {
    drawRing(painter, center, OrbShape::ringRadii.at(ring), orbRingWidth,
             withOpacity(tint, OrbShape::ringOpacities.at(ring)));
}

void drawAboutMark(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double radius = AboutMark::discRadius;
    drawHalo(painter, center, accent, 0.55, radius - 9, AboutMark::glowRadius);
    fillDisc(painter, center, radius, accentBrush(center, radius));
}

void drawScanGlow(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double radius = ScanButtonShape::discRadius;
    drawHalo(painter, center, accent, nearOpacity, radius - nearSpread, radius + nearSpread);
    drawHalo(painter, center, accent, wideOpacity, radius - wideSpread, radius + wideSpread);
    drawRing(painter, center, ScanButtonShape::ringRadius, scanRingWidth, withOpacity(accent, scanRingOpacity));
}

void drawScanDisc(QPainter& painter, QPointF center) {
    constexpr double radius = ScanButtonShape::discRadius;
    fillDisc(painter, center, radius, accentBrush(center, radius));
    // Lit from the upper left.
    const QPointF lit = center + QPointF(-0.32, -0.36) * radius;
    fillDisc(painter, center, radius, radialBrush(lit, 0.95 * radius, {{0, white(0.26)}, {1, white(0)}}));
    drawRim(painter, center, radius, 0.45);
}

void drawScanSheen(QPainter& painter, QPointF center) {
    fillDisc(painter, center, ScanButtonShape::discRadius, white(0.12));
}

void drawScanComet(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double noon = 90;
    constexpr double radius = ScanButtonShape::ringRadius;
    const QColor clear = withOpacity(accent, 0);
    const QBrush tail =
        conicalBrush(center, noon, {{0, accent}, {0.25, withOpacity(accent, 0.45)}, {0.75, clear}, {1, clear}});
    painter.setPen(QPen(tail, cometWidth, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius),
                    static_cast<int>(noon * 16), static_cast<int>(cometSpan * 16));
    fillDisc(painter, center - QPointF(0, radius), cometWidth, accent);
}

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

}  // namespace

void paintHouseTile(QPainter& painter, double side) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accentBrush({side / 2, side / 2}, side / 2));
    const double corner = side * 0.24;
    painter.drawRoundedRect(QRectF(0, 0, side, side), corner, corner);
}

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
