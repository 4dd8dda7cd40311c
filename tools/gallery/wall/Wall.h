// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>
#include <QQuickView>

#include "ui/theme/ZelkTheme.h"

namespace zelk {

/// Every component of the interface in one theme, in a window of its own. What is done to a component of which it shows
/// how that looks (the pointer rests on it, it is pressed, the keyboard is at it) is for whoever sits before the
/// window; a photograph has it done already. Main thread.
class GalleryWall {
public:
    /// `textScale`: how large the texts are. Registers the interface's types where nobody has.
    GalleryWall(const ZelkTheme& theme, double textScale);

    void show();

    /// All of the wall, however high, every component in its state. Null, with a line on standard error, where one of
    /// them could not be brought into its state.
    QImage photograph();

private:
    // What is done to a component, with a picture of it. False if that could not be.
    bool hover(QQuickItem& item, QPainter& photograph);
    bool press(QQuickItem& item, QPainter& photograph);
    bool focus(QQuickItem& item, QPainter& photograph);
    bool open(QQuickItem& item, QPainter& photograph);
    void point(QEvent::Type type, QPointF place, Qt::MouseButtons held = Qt::NoButton);
    void copy(const QQuickItem& item, QPainter& photograph);

    QQuickView view_;
};

}  // namespace zelk
