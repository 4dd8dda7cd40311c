// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointF>
#include <QQuickItem>
#include <QSizeF>
#include <limits>
#include <vector>

namespace zelk {

struct FlowPlacement {
    std::vector<QPointF> positions;  ///< top left corners, in the order of the sizes
    double height = 0;
};

inline constexpr double unlimitedWidth = std::numeric_limits<double>::infinity();

/// Places items in rows, wrapping where the next item exceeds `width`. An item wider than `width` wraps even if it is
/// the first, which leaves `spacing` above it.
FlowPlacement flowLayout(const std::vector<QSizeF>& sizes, double spacing, double width = unlimitedWidth);

/// The width of all items in one row.
double flowIdealWidth(const std::vector<QSizeF>& sizes, double spacing);

/// A row of its visible children that wraps, in reading order. The implicit width is that of one row; the implicit
/// height follows from the width. Skips children without a size, such as a Repeater.
class FlowRow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal spacing MEMBER spacing_ NOTIFY spacingChanged FINAL)

public:
    explicit FlowRow(QQuickItem* parent = nullptr);

signals:
    void spacingChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void updatePolish() override;
    void componentComplete() override;

private:
    std::vector<QQuickItem*> placedChildren() const;
    void measure();

    qreal spacing_ = 0;
};

}  // namespace zelk
