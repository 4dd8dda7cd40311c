// SPDX-License-Identifier: MIT
#include "ui/controls/FlowRow.h"

#include <QGuiApplication>
#include <algorithm>

#include "ui/theme/ReadingDirection.h"

namespace zelk {

namespace {

std::vector<QSizeF> sizesOf(const std::vector<QQuickItem*>& items) {
    std::vector<QSizeF> sizes;
    sizes.reserve(items.size());
    for (const QQuickItem* item : items) sizes.emplace_back(item->width(), item->height());
    return sizes;
}

}  // namespace

FlowPlacement flowLayout(const std::vector<QSizeF>& sizes, double spacing, double width) {
    FlowPlacement placement;
    double x = 0;
    double y = 0;
    double rowHeight = 0;
    for (const QSizeF& size : sizes) {
        if (x + size.width() > width) {
            y += rowHeight + spacing;
            x = 0;
            rowHeight = 0;
        }
        placement.positions.emplace_back(x, y);
        x += size.width() + spacing;
        rowHeight = std::max(rowHeight, size.height());
    }
    placement.height = y + rowHeight;
    return placement;
}

double flowIdealWidth(const std::vector<QSizeF>& sizes, double spacing) {
    // Sums in the same order as flowLayout(), so that rounding cannot wrap a row of exactly this width.
    double x = 0;
    double width = 0;
    for (const QSizeF& size : sizes) {
        width = x + size.width();
        x += size.width() + spacing;
    }
    return width;
}

FlowRow::FlowRow(QQuickItem* parent) : QQuickItem(parent) {
    connect(this, &FlowRow::spacingChanged, this, &FlowRow::measure);
    if (qGuiApp != nullptr) connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &FlowRow::polish);
}

std::vector<QQuickItem*> FlowRow::placedChildren() const {
    std::vector<QQuickItem*> placed;
    for (QQuickItem* child : childItems())
        if (child->isVisible() && child->width() > 0 && child->height() > 0) placed.push_back(child);
    return placed;
}

/// Sets the implicit size at once, so that the surrounding layout settles in the same frame. Children are placed on
/// polish.
void FlowRow::measure() {
    if (!isComponentComplete()) return;
    const std::vector<QSizeF> sizes = sizesOf(placedChildren());
    setImplicitWidth(flowIdealWidth(sizes, spacing_));
    setImplicitHeight(flowLayout(sizes, spacing_, width()).height);
    polish();
}

void FlowRow::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemChildAddedChange) {
        connect(data.item, &QQuickItem::widthChanged, this, &FlowRow::measure);
        connect(data.item, &QQuickItem::heightChanged, this, &FlowRow::measure);
        connect(data.item, &QQuickItem::visibleChanged, this, &FlowRow::measure);
        measure();
    } else if (change == ItemChildRemovedChange) {
        disconnect(data.item, nullptr, this, nullptr);
        measure();
    }
    QQuickItem::itemChange(change, data);
}

void FlowRow::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    if (now.width() != before.width()) measure();
}

void FlowRow::componentComplete() {
    QQuickItem::componentComplete();
    measure();
}

void FlowRow::updatePolish() {
    const std::vector<QQuickItem*> placed = placedChildren();
    const FlowPlacement placement = flowLayout(sizesOf(placed), spacing_, width());
    for (std::size_t i = 0; i < placed.size(); ++i) {
        QPointF place = placement.positions[i];
        if (readsFromRight()) place.setX(width() - place.x() - placed[i]->width());
        placed[i]->setPosition(place);
    }
}

}  // namespace zelk

#include "moc_FlowRow.cpp"
