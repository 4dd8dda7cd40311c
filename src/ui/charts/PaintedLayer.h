// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// A painted decoration with a fixed implicit size. Repainted only when a property changes; animations transform the
/// whole item.
class PaintedLayer : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged FINAL REQUIRED)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    enum Kind { OrbDisc, InnerRing, MiddleRing, OuterRing, Mark, Tile };
    Q_ENUM(Kind)

    explicit PaintedLayer(QQuickItem* parent = nullptr);

    Kind kind() const { return kind_; }
    void setKind(Kind kind);

signals:
    /// Declared here because moc of Qt 6.8 cannot handle an inherited notify signal for a nested enum.
    void kindChanged();

protected:
    void draw(QPainter& painter) override;

private:
    Kind kind_ = OrbDisc;
    QColor color_;
};

}  // namespace zelk
