// SPDX-License-Identifier: MIT
#include "ui/shell/linux/LinuxTray.h"

#include <QDBusConnectionInterface>
#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <utility>

namespace zelk {

LinuxTray::LinuxTray(const QDBusConnection& bus, bool mayBeUnannounced, std::function<bool()> usable)
    : bus_(bus), mayBeUnannounced_(mayBeUnannounced), usable_(std::move(usable)) {}

void LinuxTray::look() {
    if (!bus_.isConnected()) return follow(false);
    const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
    watch_.setConnection(bus_);
    watch_.addWatchedService(watcher);
    connect(&watch_, &QDBusServiceWatcher::serviceRegistered, this, [this] { follow(true); });
    connect(&watch_, &QDBusServiceWatcher::serviceUnregistered, this, [this] { follow(false); });
    follow(bus_.interface()->isServiceRegistered(watcher));
}

void LinuxTray::follow(bool announced) {
    setThere((announced || mayBeUnannounced_) && usable_());
}

std::unique_ptr<Tray> desktopTray() {
    // X11 also has trays that do not register on the bus.
    return std::make_unique<LinuxTray>(QDBusConnection::sessionBus(),
                                       QGuiApplication::platformName() == QStringLiteral("xcb"),
                                       &QSystemTrayIcon::isSystemTrayAvailable);
}

}  // namespace zelk
