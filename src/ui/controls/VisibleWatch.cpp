// SPDX-License-Identifier: MIT
#include "ui/controls/VisibleWatch.h"

#include <QEvent>
#include <utility>

namespace zelk {

VisibleWatch::VisibleWatch(QQuickItem* parent) : QQuickItem(parent) {
    watch(window());
    look();
}

VisibleWatch::~VisibleWatch() {
    watch(nullptr);
}

void VisibleWatch::itemChange(ItemChange change, const ItemChangeData& value) {
    QQuickItem::itemChange(change, value);
    if (change == ItemSceneChange) watch(value.window);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged) look();
}

void VisibleWatch::watch(QQuickWindow* window) {
    if (window_) {
        window_->removeEventFilter(this);
        window_->disconnect(this);
    }
    window_ = window;
    if (window == nullptr) return;
    window->installEventFilter(this);  // no signal tells of an exposure
    connect(window, &QWindow::visibleChanged, this, &VisibleWatch::look);
    connect(window, &QWindow::windowStateChanged, this, &VisibleWatch::look);
}

/// The window knows whether it is exposed before it gets the event.
bool VisibleWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose) look();
    return QQuickItem::eventFilter(watched, event);
}

void VisibleWatch::look() {
    const bool inWindow = window_ && window_->isVisible() && window_->isExposed();
    const bool seen = inWindow && isVisible() && !(window_->windowStates() & Qt::WindowMinimized);
    if (std::exchange(seen_, seen) != seen) emit seenChanged();
}

}  // namespace zelk

#include "moc_VisibleWatch.cpp"
