// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>

#include "ui/screens/welcome/WelcomeModel.h"

namespace zelk {

class Preferences;
class Workspace;

/// The sheets shown at start-up: the welcome pages once per installation, and the request for access at every start
/// without access to the whole drive. Never both at the same time. While the request is visible, it checks periodically
/// whether access has been granted, which takes a few system calls. Main thread.
class FirstRunModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell")
    Q_PROPERTY(bool started READ started NOTIFY changed FINAL)
    Q_PROPERTY(bool showWelcome READ showWelcome NOTIFY changed FINAL)
    Q_PROPERTY(bool showOnboarding READ showOnboarding NOTIFY changed FINAL)
    Q_PROPERTY(zelk::WelcomeModel* welcome READ welcome CONSTANT FINAL)
    Q_PROPERTY(bool polling READ polling WRITE setPolling FINAL)

public:
    /// The interval between two checks.
    static constexpr std::chrono::milliseconds pollInterval{1'500};

    /// `preferences` and `workspace` must outlive it. `accessGranted` checks whether the whole drive can be read;
    /// called on the main thread, and not before start().
    FirstRunModel(Preferences& preferences, std::function<bool()> accessGranted, Workspace& workspace,
                  std::chrono::milliseconds interval = pollInterval);

    /// Call when the main window is shown.
    void start();

    /// Whether there has been a sheet to show.
    bool started() const { return started_; }
    bool showWelcome() const { return showWelcome_; }
    bool showOnboarding() const { return showOnboarding_; }
    WelcomeModel* welcome() { return &welcome_; }

    /// Whether the periodic check is active; set by the view while the request is visible.
    bool polling() const { return poll_.isActive(); }
    void setPolling(bool polling);
    std::chrono::milliseconds interval() const { return poll_.intervalAsDuration(); }

public slots:
    /// Opens the system settings where access is granted.
    void openAccessSettings();
    /// Not stored: the next start asks again.
    void continueWithoutAccess();

signals:
    void changed();

private:
    void finishWelcome();
    void checkAccess();
    void show(bool welcome, bool onboarding);

    Preferences& preferences_;
    std::function<bool()> accessGranted_;
    Workspace& workspace_;
    WelcomeModel welcome_;
    QTimer poll_;
    bool started_ = false;
    bool showWelcome_ = false;
    bool showOnboarding_ = false;
};

}  // namespace zelk
