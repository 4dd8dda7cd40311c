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

QString SidebarModel::appName() const {
    return QStringLiteral("Zelk");
}
QString SidebarModel::accessibleName() const {
    return QStringLiteral("Modules");
}

void SidebarModel::setCollapsed(bool collapsed) {
    if (collapsed == collapsed_) return;
    collapsed_ = collapsed;
    emit collapsedChanged();
}

QString SidebarModel::collapseHelp() const {
    return collapsed_ ? QStringLiteral("Expand sidebar") : QStringLiteral("Collapse sidebar");
}
QString SidebarModel::collapseSymbol() const {
    return QStringLiteral("sidebar.left");
}

QString SidebarModel::developerLabel() const {
    return QStringLiteral("Developer view");
}
QString SidebarModel::developerHelp() const {
    return QStringLiteral("Show developer-focused junk and per-item controls in Reclaim");
}

bool SidebarModel::developer() const {
    return app_.audience() == AppModel::Audience::developer;
}
void SidebarModel::setDeveloper(bool developer) {
    app_.setAudience(developer ? AppModel::Audience::developer : AppModel::Audience::normal);
}

}  // namespace zelk

#include "moc_SidebarModel.cpp"
