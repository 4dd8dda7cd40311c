// SPDX-License-Identifier: MIT
#include "ui/screens/tune/AgentRows.h"

#include <string_view>
#include <utility>

#include "state/TuneModel.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr int iconSide = 44;  // drawn at 22 points, and still sharp on a screen of twice as many pixels

}  // namespace

AgentRows::AgentRows(const TuneModel& tune, Workspace& workspace)
    : RowModel({"label", "place", "icon", "removable", "ticked", "note", "mark", "reason", "spoken"}),
      tune_(tune),
      icons_(workspace, DesktopIcons::Of::programs) {}

void AgentRows::show(std::vector<Agent> agents) {
    edit(agents_, std::move(agents), [](const Agent& agent) { return std::string_view(agent.path); });
}

std::string AgentRows::pathAt(int row) const {
    return has(row) ? agents_[static_cast<std::size_t>(row)].path : std::string();
}

QString AgentRows::markOf(const Agent& agent) {
    return agent.removable || agent.mayReplace ? QString() : tr("system");
}

QVariant AgentRows::value(std::size_t row, int role) const {
    const Agent& agent = agents_[row];
    switch (role) {
        case labelRole:
            return displayText(agent.label);
        case placeRole:
            return displayText(agent.path);
        case iconRole:
            return icons_.image(agent.program.value_or(agent.path), iconSide);
        case removableRole:
            return agent.removable;
        case tickedRole:
            return agent.removable && tune_.selected().contains(agent.path);
        case noteRole:
            if (agent.mayReplace) return tr("not removable here");
            return agent.replaces ? tr("in place of the system's own") : QString();
        case markRole:
            return markOf(agent);
        case reasonRole:
            if (agent.removable) return QString();
            if (agent.mayReplace) return tr("Not removable here: what would start in its place can’t be seen.");
            return agent.replaces ? tr("Not removable: without it the system's own item would start.")
                                  : tr("Not removable: it belongs to the system.");
        case spokenRole:
            return AccessibleText::joined({displayText(agent.label), displayText(agent.path), markOf(agent)});
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_AgentRows.cpp"
