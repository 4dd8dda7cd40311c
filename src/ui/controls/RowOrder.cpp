// SPDX-License-Identifier: MIT
#include "ui/controls/RowOrder.h"

#include <algorithm>

namespace zelk {

void RowOrder::setContent(QQuickItem* content) {
    if (content == content_) return;
    if (content_ != nullptr) content_->disconnect(this);
    content_ = content;
    if (content_ != nullptr) connect(content_, &QQuickItem::childrenChanged, this, &RowOrder::watch);
    watch();
    emit contentChanged();
}

void RowOrder::watch() {
    if (content_ == nullptr) return;
    for (QQuickItem* row : content_->childItems())
        connect(row, &QQuickItem::yChanged, this, &RowOrder::arrangeSoon, Qt::UniqueConnection);
    arrangeSoon();
}

/// Queues one arrange() for all rows that move in the same event.
void RowOrder::arrangeSoon() {
    if (due_) return;
    due_ = true;
    QMetaObject::invokeMethod(this, &RowOrder::arrange, Qt::QueuedConnection);
}

void RowOrder::arrange() {
    due_ = false;
    if (content_ == nullptr) return;
    QList<QQuickItem*> rows = content_->childItems();
    const auto above = [](const QQuickItem* one, const QQuickItem* other) { return one->y() < other->y(); };
    if (std::is_sorted(rows.begin(), rows.end(), above)) return;
    std::stable_sort(rows.begin(), rows.end(), above);
    for (qsizetype row = 1; row < rows.size(); ++row) rows[row]->stackAfter(rows[row - 1]);
}

}  // namespace zelk

#include "moc_RowOrder.cpp"
