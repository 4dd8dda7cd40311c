// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickPaintedItem>

class QPainter;

namespace zelk {

/// Base of items that paint themselves with antialiasing at their own size. Repaints on `changed`. Subclasses spell the
/// base with its namespace, because qmltyperegistrar of older Qt versions cannot resolve it otherwise.
class Drawn : public QQuickPaintedItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit Drawn(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) final;

signals:
    void changed();

protected:
    virtual void draw(QPainter& painter) = 0;
};

}  // namespace zelk
