// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>

#include "ui/controls/Drawn.h"

namespace zelk {

/// Paints a sparkline and, below it, an area that fades out towards the bottom. Used by Sparkline.
class SparklinePicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<qreal> values MEMBER values_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;

private:
    QList<qreal> values_;
    QColor color_;
};

}  // namespace zelk
