// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>

#include "ui/controls/Drawn.h"

namespace zelk {

/// A track, and on it from its left as much of it as `share` says: 0 is nothing, 1 the whole. What is begun at all
/// shows at least as a dot.
void drawShare(Canvas& canvas, QSizeF size, double share, const QColor& track, const QColor& color);

/// The bar of work whose end is known, at one moment. ShareBar is what a screen shows.
class SharePicture : public zelk::Drawn {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double share READ share WRITE setShare NOTIFY shareChanged FINAL)
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY trackChanged FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)

public:
    using Drawn::Drawn;

    double share() const { return share_; }
    void setShare(double share);
    QColor track() const { return track_; }
    void setTrack(const QColor& track);
    QColor color() const { return color_; }
    void setColor(const QColor& color);

signals:
    void shareChanged();
    void trackChanged();
    void colorChanged();

protected:
    void draw(Canvas& canvas) const override;

private:
    double share_ = 0;
    QColor track_;
    QColor color_;
};

}  // namespace zelk
