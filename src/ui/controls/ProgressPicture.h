// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// What runs along the track of a bar that knows no end.
struct ProgressSliver {
    double left;  ///< beyond the track's ends at the ends of its way
    double width;

    bool operator==(const ProgressSliver&) const = default;
};

/// Where it is at a time in seconds on any clock; it runs through once in 1.5.
ProgressSliver progressSliver(double seconds, double trackWidth);

/// A track, and on it what of the sliver lies within it.
void drawProgress(Canvas& canvas, QSizeF size, double seconds, const QColor& track, const QColor& color);

/// The bar at one moment. ModuleProgressBar is what a screen shows.
class ProgressPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double seconds READ seconds WRITE setSeconds NOTIFY secondsChanged FINAL)
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY trackChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    using Drawn::Drawn;

    double seconds() const { return seconds_; }
    void setSeconds(double seconds);
    QColor track() const { return track_; }
    void setTrack(const QColor& track);
    QColor color() const { return color_; }
    void setColor(const QColor& color);

signals:
    void secondsChanged();
    void trackChanged();
    void colorChanged();

protected:
    void draw(Canvas& canvas) const override;

private:
    double seconds_ = 0;
    QColor track_;
    QColor color_;
};

}  // namespace zelk
