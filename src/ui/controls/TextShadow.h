// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QFont>
#include <QImage>
#include <QString>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The extent of the shadow beyond its text, in points.
inline constexpr double textShadowReach = 5;

/// Renders the soft dark shadow of a line of text, which makes white readable on any colour. The image extends
/// `textShadowReach` beyond the text's box. `scale` is pixels per point and becomes the device pixel ratio.
QImage textShadow(const QString& text, const QFont& font, double scale);

/// The shadow of a Text item: place it as a child that extends `reach` beyond the text on all sides.
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
    QString line_;  // elided like the text itself
    QFont font_;
};

}  // namespace zelk
