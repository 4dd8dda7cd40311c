// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/AccessPanelModel.h"

#include <utility>

#include "platform/Workspace.h"

namespace zelk {

AccessPanelModel::AccessPanelModel(std::function<bool()> accessGranted, Workspace& workspace,
                                   std::chrono::milliseconds interval)
    : accessGranted_(std::move(accessGranted)), workspace_(workspace) {
    poll_.setInterval(interval);
    connect(&poll_, &QTimer::timeout, this, &AccessPanelModel::look);
}

void AccessPanelModel::setShown(bool shown) {
    if (shown == shown_) return;
    shown_ = shown;
    if (shown)
        poll_.start();
    else
        poll_.stop();
    emit shownChanged();
}

void AccessPanelModel::openSettings() {
    workspace_.openURL(accessSettingsURL);
}

void AccessPanelModel::continueWithoutIt() {
    finish();
}

void AccessPanelModel::look() {
    if (accessGranted_()) finish();
}

void AccessPanelModel::finish() {
    poll_.stop();
    emit granted();
}

}  // namespace zelk

#include "moc_AccessPanelModel.cpp"
