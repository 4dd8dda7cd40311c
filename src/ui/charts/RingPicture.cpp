// SPDX-License-Identifier: MIT
#include "ui/charts/RingPicture.h"

#include <algorithm>
#include <cmath>

#include "ui/controls/Canvas.h"
#include "ui/controls/Spring.h"

namespace zelk {

double ringFraction(double value) {
    constexpr double dot = 0.001;
    return std::isnan(value) ? dot : std::max(std::min(value, 1.0), dot);
}

void drawRing(Canvas& canvas, double side, double value, const QColor& track, const QColor& color) {
    constexpr double lineWidth = 10;
    constexpr double noon = 90;
    const QPointF center(side / 2, side / 2);
    const double radius = (side - lineWidth) / 2;
    canvas.ring(center, radius, lineWidth, Paint::solid(track));
    canvas.roundArc(center, radius, lineWidth, noon, -360 * ringFraction(value), Paint::solid(color));
}

RingPicture::RingPicture(QQuickItem* parent) : Drawn(parent) {
    constexpr double response = 0.5;
    spring_.setEasingCurve(springEasing());
    spring_.setDuration(static_cast<int>(1000 * springRest(response)));
    connect(&spring_, &QVariantAnimation::valueChanged, this, [this](const QVariant& now) { show(now.toDouble()); });
}

void RingPicture::setValue(double value) {
    if (value == value_) return;
    value_ = value;
    spring_.stop();
    if (still_ || !isComponentComplete() || !isVisible()) {
        show(ringFraction(value));
    } else {
        spring_.setStartValue(shown_);
        spring_.setEndValue(ringFraction(value));
        spring_.start();
    }
    emit valueChanged();
}

void RingPicture::setTrack(const QColor& track) {
    if (take(track_, track)) emit trackChanged();
}

void RingPicture::setColor(const QColor& color) {
    if (take(color_, color)) emit colorChanged();
}

void RingPicture::setStill(bool still) {
    if (still == still_) return;
    still_ = still;
    if (still) {
        spring_.stop();
        show(ringFraction(value_));
    }
    emit stillChanged();
}

void RingPicture::show(double fraction) {
    take(shown_, fraction);
}

void RingPicture::draw(Canvas& canvas) const {
    drawRing(canvas, std::min(width(), height()), shown_, track_, color_);
}

}  // namespace zelk

#include "moc_RingPicture.cpp"
