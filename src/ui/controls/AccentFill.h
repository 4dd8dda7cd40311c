// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "ui/controls/Drawn.h"

namespace zelk {

/// A rounded rectangle in the accent gradient, corner to corner.
void drawAccentFill(Canvas& canvas, QSizeF size, double corner);

/// What a primary button is filled with.
class AccentFill : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double corner READ corner WRITE setCorner NOTIFY cornerChanged FINAL)

public:
    using Drawn::Drawn;

    double corner() const { return corner_; }
    void setCorner(double corner);

signals:
    void cornerChanged();

protected:
    void draw(Canvas& canvas) const override;

private:
    double corner_ = 0;
};

}  // namespace zelk
