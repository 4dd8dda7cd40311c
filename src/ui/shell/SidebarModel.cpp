// SPDX-License-Identifier: MIT
#include "ui/shell/SidebarModel.h"

#include <utility>

#include "state/AppModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

SidebarRows::SidebarRows(AppModel& app, const std::vector<SidebarGroup>& groups)
    : RowModel({"heading", "title", "symbol", "tint", "selected", "name"}), app_(app), selected_(app.selection()) {
    for (const SidebarGroup& group : groups)
        for (const Screen screen : group.screens)
            rows_.push_back({screen == group.screens.front() ? group.title : QString(), screen});
    connect(&app, &AppModel::selectionChanged, this, &SidebarRows::followSelection);
}

QVariant SidebarRows::value(std::size_t at, int role) const {
    const Row& row = rows_[at];
    const ScreenLook& look = lookOf(row.screen);
    switch (role) {
        case headingRole:
            return row.heading;
        case Qt::DisplayRole:
        case titleRole:
            return look.title;
        case symbolRole:
            return look.symbol;
        case tintRole:
            return look.color;
        case selectedRole:
            return row.screen == selected_;
        case nameRole:
            return QStringLiteral("sidebar") + look.title;
        default:
            return {};
    }
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
