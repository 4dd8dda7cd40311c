// SPDX-License-Identifier: MIT
#include "ui/screens/apps/AppRows.h"

#include <string_view>
#include <utility>

#include "state/AppsModel.h"
#include "ui/controls/AccessibleText.h"
#include "ui/screens/apps/AppTexts.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

constexpr int appIconSide = 60;  // drawn at 30 points, and still sharp on a screen of twice as many pixels

}  // namespace

AppRows::AppRows(const AppsModel& apps, Workspace& workspace)
    : RowModel({"icon", "name", "detail", "reason", "kind", "size", "removable", "busy", "spoken", "uninstallName"}),
      apps_(apps),
      icons_(workspace, DesktopIcons::Of::applications) {}

void AppRows::show(std::vector<AppEntry> apps) {
    edit(rows_, std::move(apps), [](const AppEntry& app) { return std::string_view(app.url); });
    // What the rows that stay keep elsewhere may be known now.
    allRowsChanged({detailRole, sizeRole, spokenRole});
}

const AppEntry* AppRows::at(int row) const {
    return has(row) ? &rows_[static_cast<std::size_t>(row)] : nullptr;
}

QVariant AppRows::value(std::size_t row, int role) const {
    const AppEntry& app = rows_[row];
    // Nobody says how large an entry of no package is.
    const bool isUnknown = app.kind == AppKind::package && app.package.empty();
    const QString total = isUnknown ? QString() : byteFigure(static_cast<std::int64_t>(app.size + app.dataTotal));
    switch (role) {
        case iconRole:
            return icons_.image(app.icon, appIconSide);
        case nameRole:
            return displayText(app.name);
        case detailRole:
            return AppTexts::detail(app);
        case reasonRole:
            return AppTexts::obstacle(app.obstacle);
        case kindRole:
            return AppTexts::kind(app);
        case sizeRole:
            return total;
        case removableRole:
            return app.obstacle.reason == AppObstacle::Reason::none;
        case busyRole:
            return apps_.isRemoving(app.url);
        case spokenRole:
            return AccessibleText::joined({displayText(app.name), AppTexts::kind(app), AppTexts::detail(app), total,
                                           apps_.isRemoving(app.url) ? tr("being removed") : QString()});
        case uninstallRole:
            return tr("Uninstall %1").arg(displayText(app.name));
        default:
            return {};
    }
}

}  // namespace zelk

#include "moc_AppRows.cpp"
