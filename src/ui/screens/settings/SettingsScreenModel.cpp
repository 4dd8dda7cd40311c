// SPDX-License-Identifier: MIT
#include "ui/screens/settings/SettingsScreenModel.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

ScanRootList::ScanRootList(AppModel& app)
    : RowModel(roots_,
               {{"path", [](const std::string& root) { return displayText(root); }},
                {"removeName", [](const std::string& root) { return tr("Remove %1").arg(displayText(root)); }}}),
      roots_(app.scanRoots()) {
    connect(&app, &AppModel::scanRootsChanged, this, [this, &app] {
        edit(roots_, app.scanRoots(), [](const std::string& root) { return std::string_view(root); });
    });
}

SettingsScreenModel::SettingsScreenModel(AppModel& app, std::function<std::optional<std::string>()> pickFolder)
    : app_(app), pickFolder_(std::move(pickFolder)), roots_(app) {
    connect(&app, &AppModel::ageFilterDaysChanged, this, &SettingsScreenModel::ageFilterChanged);
    connect(&app, &AppModel::hardDeleteEnabledChanged, this, &SettingsScreenModel::hardDeleteChanged);
    connect(&app, &AppModel::appearanceChanged, this, &SettingsScreenModel::themeChanged);
}

QString SettingsScreenModel::ageFilterText() const {
    return ageFilterDays() == 0 ? tr("Age filter default: all")
                                : tr("Age filter default: %1 days", "", ageFilterDays()).arg(ageFilterDays());
}
int SettingsScreenModel::ageFilterDays() const {
    return static_cast<int>(app_.ageFilterDays());
}
void SettingsScreenModel::setAgeFilterDays(int days) {
    app_.setAgeFilterDays(std::clamp(days, leastAge(), greatestAge()));
}
bool SettingsScreenModel::hardDelete() const {
    return app_.hardDeleteEnabled();
}
void SettingsScreenModel::setHardDelete(bool enabled) {
    app_.setHardDeleteEnabled(enabled);
}

int SettingsScreenModel::theme() const {
    return static_cast<int>(app_.appearance());
}
void SettingsScreenModel::setTheme(int place) {
    if (place < 0 || place > static_cast<int>(AppModel::Appearance::dark)) return;
    app_.setAppearance(static_cast<AppModel::Appearance>(place));
}

void SettingsScreenModel::addFolder() {
    const std::optional<std::string> folder = pickFolder_();
    if (!folder || folder->empty()) return;
    const std::vector<std::string> before = app_.scanRoots();
    std::vector<std::string> roots = before;
    roots.push_back(*folder);
    app_.setScanRoots(roots);
    if (app_.scanRoots() != before) app_.startScan();
}

void SettingsScreenModel::removeFolder(int row) {
    std::vector<std::string> roots = app_.scanRoots();
    if (row < 0 || row >= static_cast<int>(roots.size())) return;
    const std::string folder = roots[static_cast<std::size_t>(row)];
    std::erase(roots, folder);
    app_.setScanRoots(roots);
    app_.startScan();
}

void SettingsScreenModel::rescan() {
    app_.startScan();
}

}  // namespace zelk

#include "moc_SettingsScreenModel.cpp"
