// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickPaintedItem>

class QPainter;

namespace zelk {

/// An item that paints itself in its own size, smooth in every renderer. It repaints when a property says `changed`.
/// (Its heirs name it with its namespace: the registrars of older toolkits know no other name of it.)
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
