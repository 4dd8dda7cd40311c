// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickPaintedItem>

#include "ui/controls/Typesetter.h"

namespace zelk {

class Canvas;

/// An item that is a drawing in its own size, smooth in every renderer. Whoever changes what it draws calls update().
/// (Its heirs name it with its namespace: the registrars of older toolkits know no other name of it.)
class Drawn : public QQuickPaintedItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit Drawn(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) final;

protected:
    virtual void draw(Canvas& canvas) const = 0;

    /// Takes a new value; false if it is the old one.
    template <class T>
    bool take(T& field, const T& value) {
        if (field == value) return false;
        field = value;
        update();
        return true;
    }

private:
    Typesetter typesetter_;  // as long as it: with every frame it writes much the same
};

}  // namespace zelk
