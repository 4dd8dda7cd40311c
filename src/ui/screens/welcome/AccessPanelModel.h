// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>

namespace zelk {

class Workspace;

/// The sheet that asks for access to the whole drive. While it is visible, checks periodically whether access has been
/// granted. Main thread; a check takes a few system calls.
class AccessPanelModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Part of FirstRunModel")
    Q_PROPERTY(bool shown READ shown WRITE setShown NOTIFY shownChanged FINAL)

public:
    /// The interval between two checks.
    static constexpr std::chrono::milliseconds pollInterval{1'500};

    /// `accessGranted` checks for access. `workspace` must outlive it.
    AccessPanelModel(std::function<bool()> accessGranted, Workspace& workspace,
                     std::chrono::milliseconds interval = pollInterval);

    /// Whether the sheet is visible; set by the view.
    bool shown() const { return shown_; }
    void setShown(bool shown);
    /// Whether the periodic check is active.
    bool polling() const { return poll_.isActive(); }
    std::chrono::milliseconds interval() const { return poll_.intervalAsDuration(); }

public slots:
    /// Opens the system settings where access is granted.
    void openSettings();
    /// Not stored: the next start asks again.
    void continueWithoutIt();
    /// Checks once; called by the timer.
    void look();

signals:
    void shownChanged();
    /// The sheet is finished: access was granted, or the user continues without it.
    void granted();

private:
    void finish();

    std::function<bool()> accessGranted_;
    Workspace& workspace_;
    QTimer poll_;
    bool shown_ = false;
};

}  // namespace zelk
