// SPDX-License-Identifier: MIT
#include "ui/shell/SidebarModel.h"

#include <array>

#include "state/AppModel.h"

namespace zelk {

namespace {

std::span<const SidebarGroup> footGroups() {
    static const std::array groups{SidebarGroup{"", {Screen::tools, Screen::settings}}};
    return groups;
}

}  // namespace

SidebarModel::SidebarModel(AppModel& app) : app_(app), modules_(app, sidebarGroups()), foot_(app, footGroups()) {
    connect(&app, &AppModel::audienceChanged, this, &SidebarModel::developerChanged);
}

void SidebarModel::setCollapsed(bool collapsed) {
    if (collapsed == collapsed_) return;
    collapsed_ = collapsed;
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
