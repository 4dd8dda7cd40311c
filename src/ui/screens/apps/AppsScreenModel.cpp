// SPDX-License-Identifier: MIT
#include "ui/screens/apps/AppsScreenModel.h"

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/screens/apps/AppTexts.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

AppsScreenModel::AppsScreenModel(AppModel& app)
    : ModuleScreenModel(
          Screen::apps,
          {.title = tr("Apps"),
           .subtitle = tr("List installed apps by size and uninstall them cleanly — the app plus its leftover caches, "
                          "preferences, and support files."),
           .scanLabel = tr("Scan applications"),
           .scanningLabel = SystemTexts::of(SystemTexts::ReadingApplications)},
          [&app] { app.apps().scanApps(); }),
      apps_(app.apps()),
      rows_(apps_, app.workspace()),
      sheet_(apps_),
      undoBar_(app, RemovalUndo::Source::applications) {
    connect(&apps_, &AppsModel::appsChanged, this, &AppsScreenModel::showApps);
    connect(&apps_, &AppsModel::sortChanged, this, &AppsScreenModel::showApps);
    connect(&apps_, &AppsModel::sortChanged, this, &AppsScreenModel::orderChanged);
    connect(&apps_, &AppsModel::hasScannedChanged, this, &AppsScreenModel::followScan);
    connect(&apps_, &AppsModel::loadingChanged, this, &AppsScreenModel::followScan);
    connect(&apps_, &AppsModel::removingChanged, &rows_, &AppRows::tellBusy);
    connect(&apps_, &AppsModel::removingChanged, this, &AppsScreenModel::removingChanged);
    connect(&apps_, &AppsModel::endingChanged, this, &AppsScreenModel::endingChanged);
    connect(&apps_, &AppsModel::endingChanged, this, &AppsScreenModel::toldChanged);
    showApps();
    followScan();
}

void AppsScreenModel::followScan() {
    if (apps_.loading())
        setPhase(ModulePhase::scanning);
    else
        setPhase(apps_.hasScanned() ? ModulePhase::results : ModulePhase::idle);
}

void AppsScreenModel::showApps() {
    rows_.show(apps_.sortedApps());
    emit appsChanged();
}

bool AppsScreenModel::nothing() const {
    return apps_.apps().empty();
}

QString AppsScreenModel::line() const {
    const auto count = std::ssize(apps_.apps());
    if (SystemTexts::shown() == SystemTexts::System::flatpak)
        return tr("%1 apps · those of flatpak, snap and the distribution can’t be seen from here", "", forPlural(count))
            .arg(count);
    return tr("%1 apps · footprint includes caches, support & containers", "", forPlural(count)).arg(count);
}

int AppsScreenModel::order() const {
    return apps_.sort() == AppsModel::Sort::footprint ? 0 : 1;
}

bool AppsScreenModel::removing() const {
    return apps_.removing();
}
bool AppsScreenModel::told() const {
    return apps_.lastEnding().has_value();
}

QString AppsScreenModel::ending() const {
    return told() ? AppTexts::ending(*apps_.lastEnding()) : QString();
}

QString AppsScreenModel::reason() const {
    return told() ? AppTexts::reason(*apps_.lastEnding()) : QString();
}

void AppsScreenModel::sort(int order) {
    if (order == this->order()) return;
    apps_.setSort(order == 0 ? AppsModel::Sort::footprint : AppsModel::Sort::bundle);
    emit rearranged();
}

void AppsScreenModel::uninstall(int row) {
    const AppEntry* const app = rows_.at(row);
    if (app == nullptr || app->obstacle.reason != AppObstacle::Reason::none || removing()) return;
    sheet_.ask(*app);
}

void AppsScreenModel::forgetEnding() {
    apps_.forgetEnding();
}

}  // namespace zelk

#include "moc_AppsScreenModel.cpp"
