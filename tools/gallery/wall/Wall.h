// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>
#include <QQuickView>

#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// A window with every control in one theme. In the window, states that need the pointer or the focus are up to the
/// user; in a photograph they are applied. Main thread.
class GalleryWall {
public:
    /// `textScale` multiplies the text size. Registers the QML types unless that was done before.
    GalleryWall(const ZelkTheme& theme, double textScale);

    void show();

    /// A picture of the whole wall at its full height, with every control in its state. Null, with a message on
    /// standard error, if a state could not be applied.
    QImage photograph();

private:
    // Apply a state to an item and paste its picture. Return false if that failed.
    bool hover(QQuickItem& item, QPainter& photograph);
    bool press(QQuickItem& item, QPainter& photograph);
    bool focus(QQuickItem& item, QPainter& photograph);
    bool open(QQuickItem& item, QPainter& photograph);
    void point(QEvent::Type type, QPointF place, Qt::MouseButtons held = Qt::NoButton);
    void copy(const QQuickItem& item, QPainter& photograph);

    QQuickView view_;
};

}  // namespace zelk
