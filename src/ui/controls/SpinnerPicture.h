// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// Paints a frame of the spinner: an arc with a fading tail, its head `turn` revolutions clockwise from twelve o'clock.
/// Used by Spinner.
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
