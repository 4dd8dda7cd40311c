// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>
#include <QObject>
#include <memory>

#include "ui/shell/MainWindow.h"
#include "ui/shell/Reopening.h"
#include "ui/shell/StatusItem.h"
#include "ui/shell/StatusMenu.h"

namespace zelk {

/// The running application: its windows, its status item, and when it ends. A window that is closed ends nothing as
/// long as the status item is there to reach the application by; without one, the main window's end is the end. Before
/// every end that would come while something is being removed, the main window asks. Main thread, with a QApplication.
class Shell : public QObject {
    Q_OBJECT

public:
    /// `app` and the services must outlive it; `services.quit` ends the event loop.
    Shell(AppModel& app, const WindowServices& services);
    ~Shell() override;

    void start();

    MainWindow& main() { return main_; }
    StatusItem& statusItem() { return statusItem_; }

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
    std::unique_ptr<QMenuBar> menuBar_;  // where the system has one of its own
};

}  // namespace zelk
