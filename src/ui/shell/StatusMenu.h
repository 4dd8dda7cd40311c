// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <vector>

namespace zelk {

class AppModel;

/// One entry of the status item's menu: a divider has no text, a line nothing to run.
struct StatusEntry {
    QString text;
    std::function<void()> run;

    bool isDivider() const { return text.isEmpty(); }
};

/// What stands in the status item's menu, made from the AppModel at each call. Main thread.
class StatusMenu : public QObject {
    Q_OBJECT

public:
    /// `app` must outlive it. `openZelk` brings the application's windows forward, `quit` ends it.
    StatusMenu(AppModel& app, std::function<void()> openZelk, std::function<void()> quit);

    std::vector<StatusEntry> entries() const;

signals:
    /// The entries may have changed: a few times a second during a survey, and no more.
    void changed();

private:
    void runSurvey() const;

    AppModel& app_;
    std::function<void()> openZelk_;
    std::function<void()> quit_;
    QTimer timer_;
};

}  // namespace zelk
