// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <functional>

#include "ui/shell/Tray.h"

namespace zelk {

/// The tray that a desktop announces on its session bus. The toolkit asks for one once and remembers the answer:
/// `usable`, which asks it, is called when there is one to find, or at once where there may be one that nobody
/// announces.
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
