// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <QPointF>
#include <QSizeF>
#include <vector>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The points of a sparkline in a frame, y downwards, with a margin of 2 points at the top and bottom. Constant values
/// lie at the bottom. Empty for fewer than two values.
std::vector<QPointF> sparklinePoints(const std::vector<double>& values, QSizeF frame);

/// The polygon between the curve and the bottom of a frame of this height.
std::vector<QPointF> sparklineArea(const std::vector<QPointF>& points, double height);

/// Paints a sparkline and, below it, an area that fades out towards the bottom. Time runs as the text beside it does:
/// the latest value is at the right, or at the left where reading begins at the right. Used by Sparkline.
class SparklinePicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<qreal> values MEMBER values_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;
    bool isDirected() const override { return true; }

private:
    QList<qreal> values_;
    QColor color_;
};

}  // namespace zelk
