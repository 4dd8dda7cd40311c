// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The blurred black shadow of a rounded panel that is inset by `inset` on all sides of the item.
class SoftShadow : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double inset MEMBER inset_ NOTIFY changed FINAL)
    Q_PROPERTY(double corner MEMBER corner_ NOTIFY changed FINAL)
    Q_PROPERTY(double radius MEMBER radius_ NOTIFY changed FINAL)
    Q_PROPERTY(double strength MEMBER strength_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;

private:
    double inset_ = 0;
    double corner_ = 0;
    double radius_ = 0;    // blur radius, to either side of the panel's edge
    double strength_ = 0;  // maximum opacity
};

}  // namespace zelk
