// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QVariantAnimation>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The part of the ring that a value fills: 0 is empty and 1 is full, and even an empty one shows a dot.
double ringFraction(double value);

/// A full track and, over it, an arc of `value` from noon with the clock, in a square of this side.
void drawRing(Canvas& canvas, double side, double value, const QColor& track, const QColor& color);

/// The ring of a gauge, which springs to each new value. RingGauge is what a screen shows.
class RingPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY trackChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(bool still READ still WRITE setStill NOTIFY stillChanged FINAL)

public:
    explicit RingPicture(QQuickItem* parent = nullptr);

    double value() const { return value_; }
    void setValue(double value);
    QColor track() const { return track_; }
    void setTrack(const QColor& track);
    QColor color() const { return color_; }
    void setColor(const QColor& color);
    /// It jumps instead of springing.
    bool still() const { return still_; }
    void setStill(bool still);

    /// The fraction that is on screen now.
    double shown() const { return shown_; }

signals:
    void valueChanged();
    void trackChanged();
    void colorChanged();
    void stillChanged();

protected:
    void draw(Canvas& canvas) const override;

private:
    void show(double fraction);

    double value_ = 0;
    double shown_ = ringFraction(0);
    QColor track_;
    QColor color_;
    bool still_ = false;
    QVariantAnimation spring_;
};

}  // namespace zelk
