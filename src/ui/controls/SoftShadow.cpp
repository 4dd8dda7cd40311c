// SPDX-License-Identifier: MIT
#include "ui/controls/SoftShadow.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace zelk {

namespace {

/// One box blur of a row or column: `count` values, `step` bytes apart. `before` is a buffer for a copy.
void blurLine(uchar* line, int count, qsizetype step, int radius, std::vector<uchar>& before) {
    uchar* const copy = before.data();
    for (int at = 0; at < count; ++at) copy[at] = line[at * step];
    const int width = 2 * radius + 1;
    int sum = 0;
    for (int at = -radius; at < count; ++at) {
        if (at + radius < count) sum += copy[at + radius];
        if (at - radius > 0) sum -= copy[at - radius - 1];
        if (at >= 0) line[at * step] = static_cast<uchar>((sum + width / 2) / width);
    }
}

/// The positions that divide `whole` into two ends of length `end` and a middle.
std::array<double, 4> cuts(double whole, double end) {
    return {0, end, whole - end, whole};
}

void fillPanel(QPainter& painter, const QRectF& panel, double corner) {
    const double round = std::clamp(corner, 0.0, std::max(0.0, std::min(panel.width(), panel.height()) / 2));
    painter.drawRoundedRect(panel, round, round);
}

}  // namespace

void blurMask(QImage& mask, int radius) {
    if (mask.isNull() || radius < 1) return;
    uchar* bits = mask.bits();
    const qsizetype stride = mask.bytesPerLine();
    std::vector<uchar> before(static_cast<std::size_t>(std::max(mask.width(), mask.height())));
    for (int pass = 0; pass < blurPasses; ++pass) {
        for (int y = 0; y < mask.height(); ++y) blurLine(bits + y * stride, mask.width(), 1, radius, before);
        for (int x = 0; x < mask.width(); ++x) blurLine(bits + x, mask.height(), stride, radius, before);
    }
}

QImage blackOf(const QImage& mask, double strength, double gain) {
    QImage image(mask.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < mask.height(); ++y) {
        const uchar* from = mask.constScanLine(y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < mask.width(); ++x)
            to[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(strength * std::min(255.0, gain * from[x]))));
    }
    return image;
}

SoftShadow::SoftShadow(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(this, &SoftShadow::changed, this, [this] {
        painted_ = false;
        update();
    });
}

int SoftShadow::border() const {
    return static_cast<int>(std::ceil(inset_ + corner_ + radius_ + drop_));
}

QSize SoftShadow::pictureSize() const {
    const int most = 2 * border() + 1;
    return {std::min(most, static_cast<int>(std::ceil(width()))),
            std::min(most, static_cast<int>(std::ceil(height())))};
}

QImage SoftShadow::picture() const {
    QImage shape(pictureSize(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    const QRectF panel = QRectF(shape.rect()).adjusted(inset_, inset_, -inset_, -inset_);
    {
        QPainter painter(&shape);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        fillPanel(painter, panel.translated(0, drop_), corner_);
    }
    QImage mask = shape.convertToFormat(QImage::Format_Alpha8);
    blurMask(mask, std::max(1, static_cast<int>(std::lround(radius_ / blurPasses))));
    QImage shadow = blackOf(mask, strength_);
    QPainter painter(&shadow);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    // Keeps the shadow below the panel's antialiased edge.
    fillPanel(painter, panel.adjusted(1, 1, -1, -1), corner_ - 1);
    return shadow;
}

QSGNode* SoftShadow::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    const QSize size = pictureSize();
    if (size.isEmpty() || strength_ <= 0) {
        delete old;
        return nullptr;
    }
    constexpr int parts = 9;
    constexpr int middle = 4;  // hidden by the panel
    QSGNode* frame = old;
    if (frame == nullptr) {
        frame = new QSGNode;
        for (int part = 0; part < parts; ++part) {
            if (part == middle) continue;
            QSGImageNode* node = window()->createImageNode();
            node->setFiltering(QSGTexture::Linear);
            node->setOwnsTexture(part == 0);
            frame->appendChildNode(node);
        }
        painted_ = false;
    }
    QSGTexture* texture = nullptr;
    if (!painted_ || size != shown_)
        texture = window()->createTextureFromImage(picture(), QQuickWindow::TextureHasAlphaChannel);
    painted_ = true;
    shown_ = size;

    const double across = std::min<double>(border(), size.width() / 2.0);
    const double down = std::min<double>(border(), size.height() / 2.0);
    const auto fromX = cuts(size.width(), across);
    const auto fromY = cuts(size.height(), down);
    const auto toX = cuts(width(), across);
    const auto toY = cuts(height(), down);
    QSGNode* child = frame->firstChild();
    for (std::size_t part = 0; part < parts; ++part) {
        if (part == middle) continue;
        const std::size_t x = part % 3;
        const std::size_t y = part / 3;
        auto* node = static_cast<QSGImageNode*>(child);
        if (texture != nullptr) node->setTexture(texture);
        node->setSourceRect(QRectF(QPointF(fromX[x], fromY[y]), QPointF(fromX[x + 1], fromY[y + 1])));
        node->setRect(QRectF(QPointF(toX[x], toY[y]), QPointF(toX[x + 1], toY[y + 1])));
        child = child->nextSibling();
    }
    return frame;
}

void SoftShadow::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size()) update();
}

}  // namespace zelk

#include "moc_SoftShadow.cpp"
