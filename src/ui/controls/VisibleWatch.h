// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

namespace zelk {

/// Knows whether somebody can see the place where it stands, for what works only then: it and all items around it are
/// visible, and its window is shown, exposed and not minimised. A window that is covered by others counts as seen where
/// the system does not tell. Takes no space. Main thread.
class VisibleWatch : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool seen READ seen NOTIFY seenChanged FINAL)

public:
    explicit VisibleWatch(QQuickItem* parent = nullptr);
    ~VisibleWatch() override;

    bool seen() const { return seen_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void seenChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void watch(QQuickWindow* window);
    void look();

    QPointer<QQuickWindow> window_;
    bool seen_ = false;
};

}  // namespace zelk
