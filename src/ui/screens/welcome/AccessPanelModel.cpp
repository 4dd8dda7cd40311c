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

QString AccessPanelModel::symbol() const {
    return QStringLiteral("lock.open.display");
}
QString AccessPanelModel::title() const {
    return QStringLiteral("Zelk needs Full Disk Access");
}
QStringList AccessPanelModel::lines() const {
    return {QStringLiteral("to survey your whole drive."), QStringLiteral("Open Settings → drag Zelk in → come back.")};
}
QString AccessPanelModel::settingsLabel() const {
    return QStringLiteral("Open Settings");
}
QString AccessPanelModel::waitingLine() const {
    return QStringLiteral("waiting for access…");
}
QString AccessPanelModel::continueLabel() const {
    return QStringLiteral("Continue without it");
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
