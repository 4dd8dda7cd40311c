// SPDX-License-Identifier: MIT
#include "ui/shell/StatusItem.h"

#include <utility>

#include "ui/shell/Application.h"
#include "ui/shell/StatusMenu.h"

namespace zelk {

StatusItem::StatusItem(StatusMenu& menu, std::unique_ptr<Tray> tray) : menu_(menu), tray_(std::move(tray)) {
    connect(&menu, &StatusMenu::changed, this, &StatusItem::follow);
    connect(tray_.get(), &Tray::changed, this, &StatusItem::followTray);
    follow();
}

StatusItem::~StatusItem() {
    if (icon_ != nullptr) icon_->hide();
}

/// Creates the icon once: Qt shows it again when a tray comes back.
void StatusItem::followTray() {
    if (tray_->isThere() && icon_ == nullptr) {
        icon_ = new QSystemTrayIcon(statusIcon(), this);
        icon_->setToolTip(QStringLiteral("Zelk"));
        icon_->setContextMenu(&shown_);
        connect(&shown_, &QMenu::aboutToShow, this, &StatusItem::follow);
        icon_->show();
    }
    emit presentChanged();
}

/// Updates entries in place if only their texts change, so that an open menu does not jump.
void StatusItem::follow() {
    const std::vector<StatusEntry> entries = menu_.entries();
    const auto sameKind = [](const QAction& action, const StatusEntry& entry) {
        return action.isSeparator() == entry.isDivider() &&
               action.isEnabled() == (entry.run != nullptr || entry.isDivider());
    };
    const QList<QAction*> before = shown_.actions();
    bool same = before.size() == static_cast<qsizetype>(entries.size());
    for (qsizetype at = 0; same && at < before.size(); ++at)
        same = sameKind(*before[at], entries[static_cast<std::size_t>(at)]);
    if (!same) {
        shown_.clear();
        for (const StatusEntry& entry : entries) {
            QAction* action = entry.isDivider() ? shown_.addSeparator() : shown_.addAction(QString());
            action->setEnabled(entry.run != nullptr || entry.isDivider());
            if (entry.run) connect(action, &QAction::triggered, this, entry.run);
        }
    }
    const QList<QAction*> actions = shown_.actions();
    for (qsizetype at = 0; at < actions.size(); ++at) actions[at]->setText(entries[static_cast<std::size_t>(at)].text);
}

}  // namespace zelk

#include "moc_StatusItem.cpp"
