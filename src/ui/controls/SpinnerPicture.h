// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// A comet on a ring in a square of this side, its head `turn` of a turn past noon with the clock.
void drawSpinner(Canvas& canvas, double side, double turn, const QColor& color);

/// The spinner at one moment. Spinner is what a screen shows.
class SpinnerPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double turn READ turn WRITE setTurn NOTIFY turnChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    using Drawn::Drawn;

    double turn() const { return turn_; }
    void setTurn(double turn);
    QColor color() const { return color_; }
    void setColor(const QColor& color);

signals:
    void turnChanged();
    void colorChanged();

protected:
    void draw(Canvas& canvas) const override;

private:
    double turn_ = 0;
    QColor color_;
};

}  // namespace zelk
