// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QImage>
#include <QPointF>

#include "ui/charts/PaintedLayer.h"

namespace zelk {

/// The glow in a module's colour behind its orb, together with the background: an opaque image of the item's size. A
/// glow this faint spreads a few dozen shades over hundreds of pixels, so it is blended before rounding and dithered,
/// to avoid bands and shifts of the hue.
class ModuleGlow : public zelk::PaintedOnce {
    Q_OBJECT
    QML_ELEMENT
    // The centre, in the item's points.
    Q_PROPERTY(QPointF middle MEMBER middle_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor ground MEMBER ground_ NOTIFY changed FINAL)
    // Whether the background is dark.
    Q_PROPERTY(bool dark MEMBER dark_ NOTIFY changed FINAL)

public:
    /// Radius at which the glow ends, in points.
    static constexpr double endRadius = 520;
    /// Opacity of the colour at the centre.
    static double opacity(bool dark) { return dark ? 0.18 : 0.12; }

    using PaintedOnce::PaintedOnce;

    QImage picture(double scale) const override;

private:
    QPointF middle_;
    QColor color_;
    QColor ground_;
    bool dark_ = true;
};

}  // namespace zelk
