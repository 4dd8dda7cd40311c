// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// A track, and on it from its left as much of it as `share` says: 0 is nothing, 1 the whole. What is begun at all
/// shows at least as a dot. ShareBar is what a screen shows.
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
