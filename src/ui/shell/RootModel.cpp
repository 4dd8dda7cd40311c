// SPDX-License-Identifier: MIT
#include "ui/shell/RootModel.h"

#include "ui/welcome/FirstRunModel.h"

namespace zelk {

RootModel::RootModel(SidebarModel& sidebar, DetailPages& pages, AppCommands& commands, QuitQuestion& quitQuestion,
                     FirstRunModel* firstRun)
    : sidebar_(sidebar), pages_(pages), commands_(commands), quitQuestion_(quitQuestion), firstRun_(firstRun) {
    if (firstRun_ == nullptr) return;
    connect(firstRun_, &FirstRunModel::changed, this, &RootModel::followFirstRun);
    followFirstRun();
}

QString RootModel::title() const {
    return QStringLiteral("Zelk");
}

bool RootModel::menusInWindow() const {
#ifdef Q_OS_MACOS
    return false;
#else
    return true;
#endif
}

void RootModel::fill() {
    if (filled_) return;
    filled_ = true;
    emit filledChanged();
}

QUrl RootModel::firstRunView() const {
    return QUrl(QStringLiteral("qrc:/Zelk/Welcome/FirstRunSheets.qml"));
}

QVariantMap RootModel::firstRunGiven() const {
    return {{QStringLiteral("firstRun"), QVariant::fromValue(firstRun_)}};
}

/// The sheets stay once they are built: the last one goes by itself.
void RootModel::followFirstRun() {
    if (firstRunShown_ || !(firstRun_->showWelcome() || firstRun_->showOnboarding())) return;
    firstRunShown_ = true;
    emit firstRunChanged();
}

}  // namespace zelk

#include "moc_RootModel.cpp"
