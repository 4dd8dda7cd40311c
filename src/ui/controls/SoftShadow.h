// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The blurred black shadow of a rounded panel. The panel lies `inset` inside the item on all sides.
void drawSoftShadow(Canvas& canvas, QSizeF size, double inset, double corner, double radius, double strength);

class SoftShadow : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double inset READ inset WRITE setInset NOTIFY changed FINAL)
    Q_PROPERTY(double corner READ corner WRITE setCorner NOTIFY changed FINAL)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY changed FINAL)
    Q_PROPERTY(double strength READ strength WRITE setStrength NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

    double inset() const { return inset_; }
    void setInset(double inset) { change(inset_, inset); }
    double corner() const { return corner_; }
    void setCorner(double corner) { change(corner_, corner); }
    /// How far it is blurred, to either side of the panel's edge.
    double radius() const { return radius_; }
    void setRadius(double radius) { change(radius_, radius); }
    /// Its opacity where it is full.
    double strength() const { return strength_; }
    void setStrength(double strength) { change(strength_, strength); }

signals:
    void changed();

protected:
    void draw(Canvas& canvas) const override;

private:
    void change(double& field, double value) {
        if (take(field, value)) emit changed();
    }

    double inset_ = 0;
    double corner_ = 0;
    double radius_ = 0;
    double strength_ = 0;
};

}  // namespace zelk
