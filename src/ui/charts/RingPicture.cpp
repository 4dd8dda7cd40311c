// SPDX-License-Identifier: MIT
#include "ui/charts/RingPicture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/charts/Circles.h"
#include "ui/controls/Spring.h"

namespace zelk {

double ringFraction(double value) {
    constexpr double dot = 0.001;
    return std::isnan(value) ? dot : std::max(std::min(value, 1.0), dot);
}

RingPicture::RingPicture(QQuickItem* parent) : Drawn(parent) {
    constexpr double response = 0.5;
    spring_.setEasingCurve(springEasing());
    spring_.setDuration(static_cast<int>(1000 * springRest(response)));
    connect(&spring_, &QVariantAnimation::valueChanged, this, [this](const QVariant& now) { move(now.toDouble()); });
    connect(&spring_, &QVariantAnimation::finished, this, [this] { show(shown_); });
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
    shown_ = fraction;
    painted_ = fraction;
    update();
}

/// Repaints only what can be seen: gauges move all the time, and a spring ends with many steps that are too small.
void RingPicture::move(double fraction) {
    constexpr double leastStep = 0.0016;  // half a point along the ring of a gauge
    shown_ = fraction;
    if (std::abs(fraction - painted_) >= leastStep) show(fraction);
}

void RingPicture::draw(QPainter& painter) {
    constexpr double lineWidth = 10;
    constexpr int noon = 90 * 16;
    const double side = std::min(width(), height());
    const double radius = (side - lineWidth) / 2;
    const QPointF center(side / 2, side / 2);
    drawRing(painter, center, radius, lineWidth, track_);
    painter.setPen(QPen(color_, lineWidth, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius), noon,
                    static_cast<int>(std::lround(-360 * 16 * shown_)));
}

}  // namespace zelk

#include "moc_RingPicture.cpp"
