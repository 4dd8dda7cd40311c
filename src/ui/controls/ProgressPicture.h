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

/// The bar at one moment: a track, and on it what of the sliver lies within it. ModuleProgressBar is what a screen
/// shows.
class ProgressPicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double seconds MEMBER seconds_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor track MEMBER track_ NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    using Drawn::Drawn;

protected:
    void draw(QPainter& painter) override;

private:
    double seconds_ = 0;
    QColor track_;
    QColor color_;
};

}  // namespace zelk
