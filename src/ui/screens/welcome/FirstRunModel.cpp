// SPDX-License-Identifier: MIT
#include "ui/screens/welcome/FirstRunModel.h"

#include <utility>

#include "platform/Preferences.h"
#include "platform/Workspace.h"
#include "ui/controls/Spring.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

WelcomeModel::WelcomeModel(QObject* parent)
    : QObject(parent),
      pages_{
          {QStringLiteral("internaldrive.fill"), QColor(245, 166, 35), tr("Welcome to Zelk"),
           SystemTexts::of(SystemTexts::WelcomeLead)},
          {QStringLiteral("circle.hexagongrid.fill"), QColor(232, 91, 196), tr("See your storage"),
           tr("Scan your whole drive in seconds, broken down by type and biggest files — with a live bubble map you "
              "can drill into.")},
          {QStringLiteral("sparkles"), QColor(50, 199, 123), tr("Reclaim space safely"),
           tr("Clear caches, junk, duplicates, and forgotten large files. Everything goes to the Trash, so it's "
              "always reversible.")},
          {QStringLiteral("hand.raised.fill"), QColor(62, 155, 255), tr("Private by design"),
           SystemTexts::of(SystemTexts::WelcomePrivacy)},
      } {}

QString WelcomeModel::position() const {
    return tr("Page %1 of %2").arg(page_ + 1).arg(pages_.size());
}

int WelcomeModel::turnTime() const {
    constexpr double turnResponse = 0.5;  // seconds
    return static_cast<int>(1'000 * springRest(turnResponse));
}
QEasingCurve WelcomeModel::turnEasing() const {
    return springEasing();
}

void WelcomeModel::next() {
    if (!onLastPage()) show(page_ + 1);
}

void WelcomeModel::back() {
    if (backShown()) show(page_ - 1);
}

void WelcomeModel::pressPrimary() {
    if (onLastPage())
        emit finished();
    else
        next();
}

void WelcomeModel::show(int page) {
    page_ = page;
    emit pageChanged();
}

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
