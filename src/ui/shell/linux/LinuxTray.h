// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <functional>

#include "ui/shell/Tray.h"

namespace zelk {

/// The tray that a desktop registers on the session bus. Qt checks for one only once and caches the answer, so
/// `usable`, which triggers that check, is called only when a tray is registered, or at once if there may be an
/// unregistered one.
class LinuxTray : public Tray {
public:
    LinuxTray(const QDBusConnection& bus, bool mayBeUnannounced, std::function<bool()> usable);

    void look() override;

private:
    void follow(bool announced);

    QDBusConnection bus_;
    bool mayBeUnannounced_;
    std::function<bool()> usable_;
    QDBusServiceWatcher watch_;
};

}  // namespace zelk
