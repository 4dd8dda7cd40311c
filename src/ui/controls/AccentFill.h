// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <algorithm>

#include "ui/controls/Brushes.h"
#include "ui/controls/Drawn.h"
#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// A rounded rectangle filled with the accent gradient: the background of a primary button.
class AccentFill : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double corner MEMBER corner_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override {
        const QRectF all = boundingRect();
        painter.setBrush(
            linearBrush(all.topLeft(), all.bottomRight(), {{0, AccentGradient::from()}, {1, AccentGradient::to()}}));
        const double corner = std::min({corner_, all.width() / 2, all.height() / 2});
        painter.drawRoundedRect(all, corner, corner);
    }

private:
    double corner_ = 0;
};

}  // namespace zelk
