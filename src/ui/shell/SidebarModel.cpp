// SPDX-License-Identifier: MIT
#include "ui/shell/SidebarModel.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

SidebarRows::SidebarRows(AppModel& app, const std::vector<SidebarGroup>& groups)
    : RowModel(rows_, {{"heading", [](const Row& row) { return row.heading; }},
                       {"title", [](const Row& row) { return lookOf(row.screen).title; }},
                       {"symbol", [](const Row& row) { return lookOf(row.screen).symbol; }},
                       {"tint", [](const Row& row) { return lookOf(row.screen).color; }},
                       {"selected", [this](const Row& row) { return row.screen == selected_; }},
                       {"name", [](const Row& row) { return QStringLiteral("sidebar") + lookOf(row.screen).title; }}}),
      app_(app),
      selected_(app.selection()) {
    for (const SidebarGroup& group : groups)
        for (const Screen screen : group.screens)
            rows_.push_back({screen == group.screens.front() ? group.title : QString(), screen});
    connect(&app, &AppModel::selectionChanged, this, &SidebarRows::followSelection);
}

void SidebarRows::press(int row) {
    if (has(row)) app_.setSelection(screenAt(row));
}

/// Updates only the two rows whose selection changed.
void SidebarRows::followSelection() {
    const Screen before = std::exchange(selected_, app_.selection());
    for (int row = 0; row < rowCount(); ++row)
        if (screenAt(row) == before || screenAt(row) == selected_) rowChanged(row, {selectedRole});
}

SidebarModel::SidebarModel(AppModel& app)
    : app_(app),
      modules_(app, {SidebarGroup{"", {Screen::survey}},
                     SidebarGroup{tr("Clean"), {Screen::reclaim, Screen::privacy, Screen::tune}},
                     SidebarGroup{tr("Manage"), {Screen::apps, Screen::clutter, Screen::duplicates}},
                     SidebarGroup{tr("Explore"), {Screen::lens, Screen::health, Screen::system}}}),
      foot_(app, {SidebarGroup{"", {Screen::tools, Screen::settings}}}) {
    connect(&app, &AppModel::audienceChanged, this, &SidebarModel::developerChanged);
}

void SidebarModel::toggleCollapsed() {
    collapsed_ = !collapsed_;
    emit collapsedChanged();
}

bool SidebarModel::developer() const {
    return app_.audience() == AppModel::Audience::developer;
}
void SidebarModel::setDeveloper(bool developer) {
    app_.setAudience(developer ? AppModel::Audience::developer : AppModel::Audience::normal);
}

}  // namespace zelk

#include "moc_SidebarModel.cpp"
