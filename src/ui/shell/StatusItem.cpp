// SPDX-License-Identifier: MIT
#include "ui/shell/StatusItem.h"

#include <QGuiApplication>

#include "ui/shell/Application.h"
#include "ui/shell/StatusMenu.h"

#ifdef Q_OS_LINUX
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#endif

namespace zelk {

StatusItem::StatusItem(StatusMenu& menu) : menu_(menu) {
    connect(&menu, &StatusMenu::changed, this, &StatusItem::follow);
    follow();
}

StatusItem::~StatusItem() {
    if (tray_ != nullptr) tray_->hide();
}

void StatusItem::start() {
#ifdef Q_OS_LINUX
    // The toolkit asks for the tray once and remembers the answer: ask when there is one to find. X11 has a second
    // kind of tray, which nobody announces.
    const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
    QDBusConnection bus = QDBusConnection::sessionBus();
    const bool announced = bus.isConnected() && bus.interface()->isServiceRegistered(watcher);
    if (bus.isConnected() && !announced && QGuiApplication::platformName() != QStringLiteral("xcb")) {
        auto* watch = new QDBusServiceWatcher(watcher, bus, QDBusServiceWatcher::WatchForRegistration, this);
        connect(watch, &QDBusServiceWatcher::serviceRegistered, this, &StatusItem::appear);
        return;
    }
#endif
    appear();
}

void StatusItem::appear() {
    if (tray_ != nullptr || !QSystemTrayIcon::isSystemTrayAvailable()) return;
    tray_ = new QSystemTrayIcon(statusIcon(), this);
    tray_->setToolTip(QStringLiteral("Zelk"));
    tray_->setContextMenu(&shown_);
    connect(&shown_, &QMenu::aboutToShow, this, &StatusItem::follow);
    tray_->show();
}

/// Entries keep their place while only their texts change, so that a menu that is open does not jump.
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
