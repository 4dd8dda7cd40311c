// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <memory>

#include "ui/shell/Tray.h"

namespace zelk {

class StatusMenu;

/// Shows a StatusMenu in the desktop's tray, for as long as there is one. Main thread, with a QApplication.
class StatusItem : public QObject {
    Q_OBJECT

public:
    /// `menu` must outlive it.
    StatusItem(StatusMenu& menu, std::unique_ptr<Tray> tray);
    ~StatusItem() override;

    /// Appears, or does so as soon as a tray does. Once, behind the first frame: it asks the desktop, which takes time.
    void start() { tray_->look(); }
    /// Whether the person can reach the application through it.
    bool present() const { return icon_ != nullptr && tray_->isThere(); }

    /// The menu as it is shown.
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
