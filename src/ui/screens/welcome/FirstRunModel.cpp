// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/FirstRunModel.h"

#include <utility>

#include "platform/Preferences.h"
#include "platform/Workspace.h"

namespace zelk {

FirstRunModel::FirstRunModel(Preferences& preferences, std::function<bool()> accessGranted, Workspace& workspace,
                             std::chrono::milliseconds interval)
    : preferences_(preferences), accessGranted_(std::move(accessGranted)), workspace_(workspace) {
    poll_.setInterval(interval);
    connect(&poll_, &QTimer::timeout, this, &FirstRunModel::checkAccess);
    connect(&welcome_, &WelcomeModel::finished, this, &FirstRunModel::finishWelcome);
}

void FirstRunModel::start() {
    if (preferences_.flag(didOnboardKey))
        show(showWelcome_, !accessGranted_());
    else
        show(true, showOnboarding_);
}

/// Ignores a press on the sheet while it fades out.
void FirstRunModel::finishWelcome() {
    if (!showWelcome_) return;
    preferences_.setFlag(didOnboardKey, true);
    show(false, !accessGranted_());
}

void FirstRunModel::setPolling(bool polling) {
    if (polling)
        poll_.start();
    else
        poll_.stop();
}

void FirstRunModel::openAccessSettings() {
    workspace_.openURL(accessSettingsURL);
}

void FirstRunModel::continueWithoutAccess() {
    poll_.stop();
    show(showWelcome_, false);
}

void FirstRunModel::checkAccess() {
    if (accessGranted_()) continueWithoutAccess();
}

void FirstRunModel::show(bool welcome, bool onboarding) {
    if (welcome == showWelcome_ && onboarding == showOnboarding_) return;
    started_ = true;
    showWelcome_ = welcome;
    showOnboarding_ = onboarding;
    emit changed();
}

}  // namespace zelk

#include "moc_FirstRunModel.cpp"
