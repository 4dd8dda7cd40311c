// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/FirstRunModel.h"

#include <utility>

#include "platform/Preferences.h"

namespace zelk {

FirstRunModel::FirstRunModel(Preferences& preferences, std::function<bool()> accessGranted, Workspace& workspace,
                             std::chrono::milliseconds pollInterval)
    : preferences_(preferences),
      accessGranted_(std::move(accessGranted)),
      access_(accessGranted_, workspace, pollInterval) {
    connect(&welcome_, &WelcomeModel::finished, this, &FirstRunModel::finishWelcome);
    connect(&access_, &AccessPanelModel::granted, this, [this] { show(showWelcome_, false); });
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

void FirstRunModel::show(bool welcome, bool onboarding) {
    if (welcome == showWelcome_ && onboarding == showOnboarding_) return;
    started_ = true;
    showWelcome_ = welcome;
    showOnboarding_ = onboarding;
    emit changed();
}

}  // namespace zelk

#include "moc_FirstRunModel.cpp"
