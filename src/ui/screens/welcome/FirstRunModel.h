// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <chrono>
#include <functional>

#include "ui/screens/welcome/AccessPanelModel.h"
#include "ui/screens/welcome/WelcomeModel.h"

namespace zelk {

class Preferences;
class Workspace;

/// What stands between a start and the main window: once in the life of an installation the welcome pages, and at
/// every start without access to the whole drive the panel that asks for it. Never both at a time. Main thread.
class FirstRunModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell")
    Q_PROPERTY(bool started READ started NOTIFY changed FINAL)
    Q_PROPERTY(bool showWelcome READ showWelcome NOTIFY changed FINAL)
    Q_PROPERTY(bool showOnboarding READ showOnboarding NOTIFY changed FINAL)
    Q_PROPERTY(zelk::WelcomeModel* welcome READ welcome CONSTANT FINAL)
    Q_PROPERTY(zelk::AccessPanelModel* access READ access CONSTANT FINAL)

public:
    /// `preferences` and `workspace` must outlive it. `accessGranted` looks whether the whole drive may be read; it
    /// runs here on the main thread, and never before `start`.
    FirstRunModel(Preferences& preferences, std::function<bool()> accessGranted, Workspace& workspace,
                  std::chrono::milliseconds pollInterval = AccessPanelModel::pollInterval);

    /// The main window has appeared.
    void start();

    /// Whether there has been anything to show.
    bool started() const { return started_; }
    bool showWelcome() const { return showWelcome_; }
    bool showOnboarding() const { return showOnboarding_; }
    WelcomeModel* welcome() { return &welcome_; }
    AccessPanelModel* access() { return &access_; }

signals:
    void changed();

private:
    void finishWelcome();
    void show(bool welcome, bool onboarding);

    Preferences& preferences_;
    std::function<bool()> accessGranted_;
    WelcomeModel welcome_;
    AccessPanelModel access_;
    bool started_ = false;
    bool showWelcome_ = false;
    bool showOnboarding_ = false;
};

}  // namespace zelk
