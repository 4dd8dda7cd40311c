// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointer>
#include <QQuickItem>

namespace zelk {

/// Keeps the items of a list's rows in their visual order, top down. A screen reader reads siblings in item order,
/// while a list view creates, moves and reuses rows without reordering them. Main thread.
class RowOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* content READ content WRITE setContent NOTIFY contentChanged FINAL)

public:
    using QObject::QObject;

    /// The item whose children are the rows; not owned.
    QQuickItem* content() const { return content_; }
    void setContent(QQuickItem* content);

signals:
    void contentChanged();

private slots:
    void watch();
    void arrangeSoon();

private:
    void arrange();

    QPointer<QQuickItem> content_;
    bool due_ = false;
};

}  // namespace zelk
