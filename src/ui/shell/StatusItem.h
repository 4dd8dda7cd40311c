// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

namespace zelk {

class StatusMenu;

/// Shows a StatusMenu in the desktop's tray, for the whole run. A desktop without a tray is asked for none. Main
/// thread, with a QApplication.
class StatusItem : public QObject {
    Q_OBJECT

public:
    /// `menu` must outlive it.
    explicit StatusItem(StatusMenu& menu);
    ~StatusItem() override;

    /// Appears, or does so as soon as a tray does. Once, behind the first frame: it asks the desktop, which takes time.
    void start();
    /// Whether the person can reach the application through it.
    bool present() const { return tray_ != nullptr; }

    /// The menu as it is shown.
    QMenu& menu() { return shown_; }

private:
    void appear();
    void follow();

    StatusMenu& menu_;
    QMenu shown_;
    QSystemTrayIcon* tray_ = nullptr;
};

}  // namespace zelk
