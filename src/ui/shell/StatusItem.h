// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QObject>
#include <QString>
#include <QSystemTrayIcon>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "ui/shell/Tray.h"

namespace zelk {

class AppModel;

/// An entry of the status item's menu. A divider has no text, an informational line nothing to run.
struct StatusEntry {
    QString text;
    std::function<void()> run;

    bool isDivider() const { return text.isEmpty(); }
};

/// The contents of the status item's menu, derived from the AppModel on each call. Main thread.
class StatusMenu : public QObject {
    Q_OBJECT

public:
    /// `app` must outlive it. `openZelk` raises the application's windows, `quit` ends it.
    StatusMenu(AppModel& app, std::function<void()> openZelk, std::function<void()> quit);

    std::vector<StatusEntry> entries() const;

signals:
    /// The entries may have changed. Throttled to a few times per second during a survey.
    void changed();

private:
    void runSurvey() const;

    AppModel& app_;
    std::function<void()> openZelk_;
    std::function<void()> quit_;
    QTimer timer_;
};

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
