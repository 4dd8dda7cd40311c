// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>
#include <vector>

namespace zelk {

/// A wrapping row of its visible children, each in its own size. Its implicit width is that of a single row; its
/// implicit height follows from its width. Children without a size (a Repeater is one) take no place.
class FlowRow : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qreal spacing READ spacing WRITE setSpacing NOTIFY spacingChanged FINAL)

public:
    explicit FlowRow(QQuickItem* parent = nullptr);

    qreal spacing() const { return spacing_; }
    void setSpacing(qreal spacing);

signals:
    void spacingChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void updatePolish() override;
    void componentComplete() override;

private:
    std::vector<QQuickItem*> placedChildren() const;
    void measure();

    qreal spacing_ = 0;
};

}  // namespace zelk
