// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickPaintedItem>
#include <QVariant>

namespace zelk {

/// Shows a QImage of a model, scaled smoothly to the item. Hidden from screen readers: the item beside it has the name.
class Picture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant image READ image WRITE setImage NOTIFY imageChanged FINAL REQUIRED)

public:
    explicit Picture(QQuickItem* parent = nullptr);

    /// A QImage, as a QVariant because QML has no such type; other values count as null.
    QVariant image() const { return image_; }
    void setImage(const QVariant& image);

    void paint(QPainter* painter) override;

signals:
    void imageChanged();

private:
    QImage image_;
};

}  // namespace zelk
