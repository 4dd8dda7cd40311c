// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>
#include <QObject>
#include <memory>

#include "ui/shell/Activation.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/NativeApplication.h"
#include "ui/shell/StatusItem.h"

namespace zelk {

/// The running application: its windows, its status item and its end. Closing the windows does not quit while the
/// status item is present; without one, closing the main window does. If a removal is running, the main window asks
/// before quitting. Main thread; needs a QApplication.
class Shell : public QObject {
    Q_OBJECT

public:
    /// `app` and the services must outlive it. `services.quit` must end the event loop.
    Shell(AppModel& app, const WindowServices& services);
    ~Shell() override;

    void start();
    /// Brings the main window to the front, even if it was closed or minimized, because it was asked for from outside;
    /// a pending quit is dropped. Returns false, and does nothing, if the application is ending already.
    bool comeForward(const Activation& by);

    MainWindow& main() { return main_; }
    StatusItem& statusItem() { return statusItem_; }

signals:
    /// The contents of the main window were painted for the first time. Emitted once.
    void complete();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openZelk();
    void followApplicationState(Qt::ApplicationState state);
    void followMainWindow(bool visible);
    void followStatusItem();

    Reopening reopening_;
    MainWindow main_;
    StatusMenu statusMenu_;
    StatusItem statusItem_;
    std::unique_ptr<QMenuBar> menuBar_;  // only if the system has a global menu bar
};

}  // namespace zelk
