// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QVariantAnimation>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The filled fraction of the ring for a value: clamped to 0...1, with a minimum that shows as a dot. NaN counts as 0.
double ringFraction(double value);

/// The ring of a gauge: a track and an arc that runs clockwise from twelve o'clock and springs to each new value. It is
/// a bent bar and no clock, so it runs the other way round where reading begins at the right. Used by RingGauge.
class RingPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged FINAL)
    Q_PROPERTY(QColor track MEMBER track_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)
    Q_PROPERTY(bool still READ still WRITE setStill NOTIFY stillChanged FINAL)

public:
    explicit RingPicture(QQuickItem* parent = nullptr);

    double value() const { return value_; }
    void setValue(double value);
    /// Whether the arc jumps to a new value instead of springing.
    bool still() const { return still_; }
    void setStill(bool still);

    /// The fraction currently shown.
    double shown() const { return shown_; }

signals:
    void valueChanged();
    void stillChanged();

protected:
    void draw(QPainter& painter) override;
    bool isDirected() const override { return true; }

private:
    void show(double fraction);
    void move(double fraction);

    double value_ = 0;
    double shown_ = ringFraction(0);
    double painted_ = shown_;
    QColor track_;
    QColor color_;
    bool still_ = false;
    QVariantAnimation spring_;
};

}  // namespace zelk
