// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickItem>
#include <vector>

namespace zelk {

/// A row of its visible children that wraps. The implicit width is that of one row; the implicit height follows from
/// the width. Skips children without a size, such as a Repeater.
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
