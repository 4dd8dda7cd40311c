// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QVariantAnimation>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The part of the ring that a value fills: 0 is empty and 1 is full, and even an empty one shows a dot.
double ringFraction(double value);

/// The ring of a gauge: a full track and, over it, an arc from noon with the clock, which springs to each new value.
/// RingGauge is what a screen shows.
class RingPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(QColor track MEMBER track_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)
    Q_PROPERTY(bool still READ still WRITE setStill NOTIFY stillChanged FINAL)

public:
    explicit RingPicture(QQuickItem* parent = nullptr);

    double value() const { return value_; }
    void setValue(double value);
    /// It jumps instead of springing.
    bool still() const { return still_; }
    void setStill(bool still);

    /// The fraction that is on screen now.
    double shown() const { return shown_; }

signals:
    void valueChanged();
    void stillChanged();

protected:
    void draw(QPainter& painter) override;

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
