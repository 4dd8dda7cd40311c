// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include "ui/controls/Drawn.h"

namespace zelk {

/// A rounded rectangle filled with the accent gradient: the background of a primary button.
class AccentFill : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double corner MEMBER corner_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;

private:
    double corner_ = 0;
};

}  // namespace zelk
