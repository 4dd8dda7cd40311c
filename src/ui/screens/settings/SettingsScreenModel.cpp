// SPDX-License-Identifier: MIT
#include "ui/screens/settings/SettingsScreenModel.h"

#include <algorithm>
#include <array>
#include <utility>

#include "state/AppModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

/// In the order of the picker.
constexpr std::array appearances{AppModel::Appearance::system, AppModel::Appearance::light, AppModel::Appearance::dark};

}  // namespace

SettingsScreenModel::SettingsScreenModel(AppModel& app, std::function<std::optional<std::string>()> pickFolder)
    : app_(app), pickFolder_(std::move(pickFolder)), roots_(app) {
    connect(&app, &AppModel::ageFilterDaysChanged, this, &SettingsScreenModel::ageFilterChanged);
    connect(&app, &AppModel::hardDeleteEnabledChanged, this, &SettingsScreenModel::hardDeleteChanged);
    connect(&app, &AppModel::appearanceChanged, this, &SettingsScreenModel::themeChanged);
}

QString SettingsScreenModel::symbol() const {
    return lookOf(Screen::settings).symbol;
}
QColor SettingsScreenModel::tint() const {
    return lookOf(Screen::settings).color;
}
QString SettingsScreenModel::title() const {
    return lookOf(Screen::settings).title;
}
QString SettingsScreenModel::subtitle() const {
    return lookOf(Screen::settings).subtitle;
}

QString SettingsScreenModel::rootsTitle() const {
    return QStringLiteral("Scan roots");
}
QString SettingsScreenModel::noRootsLine() const {
    return QStringLiteral("No folders yet. Add one, and a survey walks it.");
}
QString SettingsScreenModel::addFolderLabel() const {
    return QStringLiteral("Add folder…");
}

QString SettingsScreenModel::cleanupTitle() const {
    return QStringLiteral("Cleanup");
}
QString SettingsScreenModel::ageFilterText() const {
    const QString age = ageFilterDays() == 0 ? QStringLiteral("all") : QStringLiteral("%1 days").arg(ageFilterDays());
    return QStringLiteral("Age filter default: ") + age;
}
int SettingsScreenModel::ageFilterDays() const {
    return static_cast<int>(app_.ageFilterDays());
}
void SettingsScreenModel::setAgeFilterDays(int days) {
    app_.setAgeFilterDays(std::clamp(days, leastAge(), greatestAge()));
}
QString SettingsScreenModel::hardDeleteLabel() const {
    return QStringLiteral("Delete permanently by default");
}
QString SettingsScreenModel::hardDeleteNote() const {
    return QStringLiteral("Off keeps cleanup reversible (moves to Trash).");
}
bool SettingsScreenModel::hardDelete() const {
    return app_.hardDeleteEnabled();
}
void SettingsScreenModel::setHardDelete(bool enabled) {
    app_.setHardDeleteEnabled(enabled);
}

QString SettingsScreenModel::appearanceTitle() const {
    return QStringLiteral("Appearance");
}
QString SettingsScreenModel::themeLabel() const {
    return QStringLiteral("Theme");
}
QStringList SettingsScreenModel::themes() const {
    return {QStringLiteral("System"), QStringLiteral("Light"), QStringLiteral("Dark")};
}
int SettingsScreenModel::theme() const {
    const auto place = std::find(appearances.begin(), appearances.end(), app_.appearance());
    return static_cast<int>(std::distance(appearances.begin(), place));
}
void SettingsScreenModel::setTheme(int place) {
    if (place < 0 || place >= static_cast<int>(appearances.size())) return;
    app_.setAppearance(appearances[static_cast<std::size_t>(place)]);
}

QString SettingsScreenModel::rescanLabel() const {
    return QStringLiteral("Re-scan now");
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
