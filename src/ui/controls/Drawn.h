// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPainter>
#include <QQuickPaintedItem>

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
        draw(*painter);
    }

signals:
    void changed();

protected:
    virtual void draw(QPainter& painter) = 0;
};

}  // namespace zelk
