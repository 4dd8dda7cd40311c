// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QImage>
#include <QQuickPaintedItem>

namespace zelk {

/// A picture that a model holds, smoothly in the item's own size. It says nothing to a screen reader: what it stands
/// beside does.
class Picture : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged FINAL REQUIRED)

public:
    explicit Picture(QQuickItem* parent = nullptr);

    QImage image() const { return image_; }
    void setImage(const QImage& image);

    void paint(QPainter* painter) override;

signals:
    void imageChanged();

private:
    QImage image_;
};

}  // namespace zelk
