// SPDX-License-Identifier: MIT
// The pictures of the two busy indicators: a frame each at a moment that the view gives.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// The moving segment of an indeterminate progress bar.
struct ProgressSliver {
    double left;  ///< from minus its width to the width of the track
    double width;

    bool operator==(const ProgressSliver&) const = default;
};

/// Its geometry after `seconds` on any clock; one pass takes 1.5 seconds.
ProgressSliver progressSliver(double seconds, double trackWidth);

/// Paints a frame of the progress bar: the track, and on it the part that is done, from 0 to 1, or if that is negative
/// the part of the moving segment within the track. Both begin where reading begins. Used by ModuleProgressBar.
class ProgressPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double seconds MEMBER seconds_ NOTIFY changed FINAL)
    Q_PROPERTY(double part MEMBER part_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor track MEMBER track_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;
    bool isDirected() const override { return true; }

private:
    double seconds_ = 0;
    double part_ = -1;
    QColor track_;
    QColor color_;
};

/// Paints a frame of the spinner: an arc with a fading tail, its head `turn` revolutions clockwise from twelve o'clock.
/// Used by Spinner.
class SpinnerPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double turn MEMBER turn_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;

private:
    double turn_ = 0;
    QColor color_;
};

}  // namespace zelk
