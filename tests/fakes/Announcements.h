// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zelk::fakes {

/// The alerts that have appeared in a window since this was made, which is what screen readers announce unasked. (Qt
/// tells them to nobody on a platform without a screen reader, so the items themselves are watched.)
class Announcements {
public:
    explicit Announcements(QQuickWindow& window) : window_(window) {
        watchAll();
        heard_->clear();
    }

    /// Their names, in order, since the last call.
    std::vector<std::string> take() {
        watchAll();
        return std::exchange(*heard_, {});
    }

private:
    using Names = std::vector<std::string>;

    static std::string nameOf(QQuickItem& item) {
        return QAccessible::queryAccessibleInterface(&item)->text(QAccessible::Name).toStdString();
    }
    static bool isAlert(QQuickItem& item) {
        const QAccessibleInterface* const node = QAccessible::queryAccessibleInterface(&item);
        return node != nullptr && node->role() == QAccessible::AlertMessage;
    }

    void watchAll() {
        std::erase_if(watched_, [](const QPointer<QQuickItem>& item) { return item.isNull(); });
        watchBelow(*window_.contentItem());
    }
    void watchBelow(QQuickItem& item) {
        const bool known = std::find(watched_.begin(), watched_.end(), &item) != watched_.end();
        if (!known && isAlert(item)) {
            watched_.emplace_back(&item);
            if (item.isVisible()) heard_->push_back(nameOf(item));
            QObject::connect(&item, &QQuickItem::visibleChanged, &item, [&item, heard = heard_] {
                if (item.isVisible() && isAlert(item)) heard->push_back(nameOf(item));
            });
        }
        for (QQuickItem* child : item.childItems()) watchBelow(*child);
    }

    QQuickWindow& window_;
    std::vector<QPointer<QQuickItem>> watched_;
    std::shared_ptr<Names> heard_ = std::make_shared<Names>();
};

}  // namespace zelk::fakes
