// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QVariant>

#include "ui/controls/Drawn.h"

namespace zelk {

/// Shows a QImage of a model, scaled smoothly to the item. Hidden from screen readers: the item beside it has the name.
class Picture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    // A QImage, as a QVariant because QML has no such type; other values count as null.
    Q_PROPERTY(QVariant image MEMBER image_ NOTIFY changed FINAL REQUIRED)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override { painter.drawImage(boundingRect(), image_.value<QImage>()); }

private:
    QVariant image_;
};

}  // namespace zelk
