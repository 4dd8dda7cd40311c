// SPDX-License-Identifier: MIT
#include "ui/charts/PaintedLayer.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <array>
#include <cmath>
#include <iterator>

#include "ui/charts/Circles.h"
#include "ui/controls/Brushes.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

namespace {

// In points. All layers of the orb, and of the scan button, share one centre.
constexpr double orbFrame = 150;
constexpr double orbRadius = 52;
constexpr double orbBlur = 20;  // extent of the shadow beyond the disc
constexpr double orbDrop = 8;   // by which the shadow lies lower
constexpr std::array orbRingRadii{58.0, 65.5, 73.0};
constexpr std::array orbRingOpacities{0.4, 0.24, 0.12};

constexpr double introRadius = 54;
constexpr double introHalo = 70;

constexpr double scanFrame = 264;  // holds the glow
constexpr double scanRadius = 92;
constexpr double scanRingRadius = 108;
constexpr double cometFrame = 228;
constexpr double cometWidth = 3;

constexpr double markRadius = 39;
constexpr double markGlow = 48;

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

/// The disc of an orb in the module's colour, with its shadow.
void drawOrbDisc(QPainter& painter, QPointF center, const QColor& tint) {
    drawHalo(painter, center + QPointF(0, orbDrop), tint, 0.5, orbRadius - orbBlur, orbRadius + orbBlur);
    const QPointF corner(orbRadius, orbRadius);
    fillDisc(painter, center, orbRadius,
             linearBrush(center - corner, center + corner,
                         {{0, mix(tint, Qt::white, 0.22)}, {1, mix(tint, Qt::black, 0.16)}}));
    drawRim(painter, center, orbRadius, 0.4);
}

/// The disc of a welcome page on a wider, faint one. Painted, since the software renderer does not smooth the edge of a
/// rectangle with a gradient.
void drawIntroDisc(QPainter& painter, QPointF center, const QColor& tint) {
    fillDisc(painter, center, introHalo, withOpacity(tint, 0.16));
    const QPointF up(0, introRadius);
    fillDisc(painter, center, introRadius, linearBrush(center - up, center + up, {{0, tint.lighter(115)}, {1, tint}}));
}

/// A near halo, a wide halo and a fine ring around the scan button's disc.
void drawScanGlow(QPainter& painter, QPointF center, const QColor& accent) {
    drawHalo(painter, center, accent, 0.55, scanRadius - 20, scanRadius + 20);
    drawHalo(painter, center, accent, 0.3, scanRadius - 40, scanRadius + 40);
    drawRing(painter, center, scanRingRadius, 1.25, withOpacity(accent, 0.42));
}

/// The scan button's disc, lit from the upper left.
void drawScanDisc(QPainter& painter, QPointF center, const QColor&) {
    fillDisc(painter, center, scanRadius, accentBrush(center, scanRadius));
    const QPointF lit = center + QPointF(-0.32, -0.36) * scanRadius;
    fillDisc(painter, center, scanRadius, radialBrush(lit, 0.95 * scanRadius, {{0, white(0.26)}, {1, white(0)}}));
    drawRim(painter, center, scanRadius, 0.45);
}

/// An arc with a fading tail on the scan button's ring, its head at twelve o'clock, to be rotated clockwise.
void drawScanComet(QPainter& painter, QPointF center, const QColor& accent) {
    constexpr double noon = 90;
    constexpr double span = 270;
    const QPointF corner(scanRingRadius, scanRingRadius);
    const QColor clear = withOpacity(accent, 0);
    const QBrush tail =
        conicalBrush(center, noon, {{0, accent}, {0.25, withOpacity(accent, 0.45)}, {0.75, clear}, {1, clear}});
    painter.setPen(QPen(tail, cometWidth, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(center - corner, center + corner), static_cast<int>(noon * 16), static_cast<int>(span * 16));
    fillDisc(painter, center - QPointF(0, scanRingRadius), cometWidth, accent);
}

/// A ring of the orb, so many steps from the innermost.
template <std::size_t step>
void drawOrbRing(QPainter& painter, QPointF center, const QColor& tint) {
    drawRing(painter, center, orbRingRadii.at(step), 1.5, withOpacity(tint, orbRingOpacities.at(step)));
}

/// The disc of the application's mark, in its glow.
void drawMark(QPainter& painter, QPointF center, const QColor& tint) {
    drawHalo(painter, center, tint, 0.55, markRadius - 9, markGlow);
    fillDisc(painter, center, markRadius, accentBrush(center, markRadius));
}

/// How large a layer is, and what paints it around the centre.
struct Layer {
    double side;
    void (*draw)(QPainter& painter, QPointF center, const QColor& color);
};

const Layer& layerOf(PaintedLayer::Kind kind) {
    constexpr double scanDisc = 2 * scanRadius + 2;  // with a point for the antialiased edge
    // In the order of the kinds.
    static constexpr Layer layers[] = {
        {2 * (orbRadius + orbBlur + orbDrop), drawOrbDisc},
        {orbFrame, drawOrbRing<0>},
        {orbFrame, drawOrbRing<1>},
        {orbFrame, drawOrbRing<2>},
        {2 * introHalo, drawIntroDisc},
        {2 * markGlow, drawMark},
        {28, [](QPainter& painter, QPointF center, const QColor&) { paintHouseTile(painter, 2 * center.x()); }},
        {scanFrame, drawScanGlow},
        {scanDisc, drawScanDisc},
        {scanDisc,
         [](QPainter& painter, QPointF center, const QColor&) { fillDisc(painter, center, scanRadius, white(0.12)); }},
        {cometFrame, drawScanComet},
    };
    static_assert(std::size(layers) == PaintedLayer::ScanComet + 1);
    return layers[kind];
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
    if (width() <= 0 || height() <= 0 || !isVisible()) {
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
    // Qt Quick asks hidden items for their contents too, and would keep them.
    if (change == ItemVisibleHasChanged) update();
    QQuickItem::itemChange(change, data);
}

void PaintedOnce::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) repaint();
}

PaintedLayer::PaintedLayer(QQuickItem* parent) : PaintedOnce(parent) {
    setImplicitSize(layerOf(kind_).side, layerOf(kind_).side);
}

void PaintedLayer::setKind(Kind kind) {
    if (kind == kind_) return;
    kind_ = kind;
    setImplicitSize(layerOf(kind).side, layerOf(kind).side);
    emit changed();
    emit kindChanged();
}

bool PaintedLayer::contains(const QPointF& point) const {
    if (kind_ != ScanGlow) return PaintedOnce::contains(point);
    const QPointF away = point - boundingRect().center();
    return std::hypot(away.x(), away.y()) <= scanRadius;
}

QImage PaintedLayer::picture(double scale) const {
    QImage image(static_cast<int>(std::ceil(width() * scale)), static_cast<int>(std::ceil(height() * scale)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    layerOf(kind_).draw(painter, boundingRect().center(), color_);
    return image;
}

}  // namespace zelk

#include "moc_PaintedLayer.cpp"
