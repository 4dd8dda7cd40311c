// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QList>
#include <vector>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The area under the curve, fading out towards the floor, and the curve over it.
void drawSparkline(Canvas& canvas, const std::vector<double>& values, QSizeF frame, const QColor& color);

/// The curve of a history in its frame. Sparkline is what a screen shows.
class SparklinePicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<qreal> values READ values WRITE setValues NOTIFY valuesChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    using Drawn::Drawn;

    QList<qreal> values() const { return values_; }
    void setValues(const QList<qreal>& values);
    QColor color() const { return color_; }
    void setColor(const QColor& color);

signals:
    void valuesChanged();
    void colorChanged();

protected:
    void draw(Canvas& canvas) const override;

private:
    QList<qreal> values_;
    QColor color_;
};

}  // namespace zelk
