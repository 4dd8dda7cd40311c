// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <memory>

#include "ui/shell/Tray.h"

namespace zelk {

class StatusMenu;

/// Shows a StatusMenu in the desktop's tray while there is one. Main thread; needs a QApplication.
class StatusItem : public QObject {
    Q_OBJECT

public:
    /// `menu` must outlive it.
    StatusItem(StatusMenu& menu, std::unique_ptr<Tray> tray);
    ~StatusItem() override;

    /// Shows the item now or as soon as a tray appears. Call once, after the first frame: it queries the desktop, which
    /// takes time.
    void start() { tray_->look(); }
    /// Whether the user can reach the application through it.
    bool present() const { return icon_ != nullptr && tray_->isThere(); }

    /// The menu as displayed.
    QMenu& menu() { return shown_; }

signals:
    void presentChanged();

private:
    void followTray();
    void follow();

    StatusMenu& menu_;
    std::unique_ptr<Tray> tray_;
    QMenu shown_;
    QSystemTrayIcon* icon_ = nullptr;
};

}  // namespace zelk
