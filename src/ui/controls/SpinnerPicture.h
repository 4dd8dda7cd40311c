// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// A comet on a ring at one moment, its head `turn` of a turn past noon with the clock. Spinner is what a screen shows.
class SpinnerPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double turn MEMBER turn_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;

private:
    double turn_ = 0;
    QColor color_;
};

}  // namespace zelk
