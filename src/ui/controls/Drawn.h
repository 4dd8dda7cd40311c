// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPainter>
#include <QQuickPaintedItem>

#include "ui/theme/ReadingDirection.h"

namespace zelk {

/// Base of items that paint themselves with antialiasing at their own size. Repaints on `changed`. Subclasses spell the
/// base with its namespace, because qmltyperegistrar of older Qt versions cannot resolve it otherwise.
class Drawn : public QQuickPaintedItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit Drawn(QQuickItem* parent = nullptr) : QQuickPaintedItem(parent) {
        setAntialiasing(true);
        connect(this, &Drawn::changed, this, [this] { update(); });
    }

    void paint(QPainter* painter) final {
        painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter->setPen(Qt::NoPen);
        if (isDirected() && readsFromRight()) {
            painter->translate(width(), 0);
            painter->scale(-1, 1);
        }
        draw(*painter);
    }

signals:
    void changed();

protected:
    virtual void draw(QPainter& painter) = 0;
    /// Whether the picture begins at a side: it is drawn as if read from left to right, and mirrored where that is not
    /// so. Such a picture has no texts.
    virtual bool isDirected() const { return false; }
};

}  // namespace zelk
