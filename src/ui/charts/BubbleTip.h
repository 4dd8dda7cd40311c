// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include "ui/charts/BubbleSlice.h"

namespace zelk {

/// The contents and position of the tool tip of a bubble.
struct BubbleTip {
    Q_GADGET
    QML_VALUE_TYPE(bubbleTip)
    Q_PROPERTY(bool shown MEMBER shown CONSTANT FINAL)
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QString line MEMBER line CONSTANT FINAL)
    Q_PROPERTY(bool reclaimable MEMBER reclaimable CONSTANT FINAL)
    Q_PROPERTY(QPointF corner MEMBER corner CONSTANT FINAL)
    Q_PROPERTY(double widest MEMBER widest CONSTANT FINAL)

public:
    bool shown = false;  ///< the other fields are valid only if set
    QString label;
    QString line;  ///< the size, and whether it is reclaimable
    bool reclaimable = false;
    QPointF corner;     ///< top left corner, in the chart's points
    double widest = 0;  ///< maximum width there

    /// The tip at `point` in a chart of size `chart`, with texts scaled by `textScale`.
    static BubbleTip of(const BubbleSlice& slice, QPointF point, QSizeF chart, double textScale);

    bool operator==(const BubbleTip&) const = default;
};

}  // namespace zelk
