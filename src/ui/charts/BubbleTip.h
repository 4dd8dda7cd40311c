// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include "ui/charts/BubbleSlice.h"

namespace zelk {

/// What is said of a bubble beside the pointer.
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
    bool shown = false;  ///< else there is nothing in the rest
    QString label;
    QString line;  ///< how large it is, and whether it can go
    bool reclaimable = false;
    QPointF corner;     ///< its top left, in the chart's points
    double widest = 0;  ///< what it has room for there

    /// The tip at a point of a chart of this size, with texts this many times their normal size.
    static BubbleTip of(const BubbleSlice& slice, QPointF point, QSizeF chart, double textScale);

    bool operator==(const BubbleTip&) const = default;
};

}  // namespace zelk
