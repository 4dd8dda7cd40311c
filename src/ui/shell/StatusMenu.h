// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <vector>

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

}  // namespace zelk
