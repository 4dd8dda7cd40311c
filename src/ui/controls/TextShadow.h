// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QFont>
#include <QImage>
#include <QString>

#include "ui/controls/Drawn.h"

namespace zelk {

/// How far the shadow of a text reaches beyond it, in points.
inline constexpr double textShadowReach = 5;

/// The soft dark shadow of a line of text, which makes white readable on any colour. The text's box stands
/// `textShadowReach` inside the picture on all sides. `scale` is pixels to the point, which the picture knows.
QImage textShadow(const QString& text, const QFont& font, double scale);

/// The same below a text of the interface: a child of it that lies `reach` beyond it on all sides.
class TextShadow : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString line MEMBER line_ NOTIFY changed FINAL)
    Q_PROPERTY(QFont font MEMBER font_ NOTIFY changed FINAL)
    Q_PROPERTY(double reach READ reach CONSTANT FINAL)

public:
    using Drawn::Drawn;

    double reach() const { return textShadowReach; }

protected:
    void draw(QPainter& painter) override;

private:
    QString line_;  // shortened like the text where there is no room for it
    QFont font_;
};

}  // namespace zelk
