// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// Paints a progress bar: a track, filled from the left by `share`, 0 to 1. Any positive share is visible at least as a
/// dot. Used by ShareBar.
class SharePicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double share MEMBER share_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor track MEMBER track_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;

private:
    double share_ = 0;
    QColor track_;
    QColor color_;
};

}  // namespace zelk
