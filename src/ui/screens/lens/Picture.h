// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickPaintedItem>
#include <QVariant>

namespace zelk {

/// A picture that a model holds, smoothly in the item's own size. It says nothing to a screen reader: what it stands
/// beside does.
class Picture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant image READ image WRITE setImage NOTIFY imageChanged FINAL REQUIRED)

public:
    explicit Picture(QQuickItem* parent = nullptr);

    /// A QImage, for which QML has no name; anything else is an empty one.
    QVariant image() const { return image_; }
    void setImage(const QVariant& image);

    void paint(QPainter* painter) override;

signals:
    void imageChanged();

private:
    QImage image_;
};

}  // namespace zelk
