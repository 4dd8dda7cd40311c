// SPDX-License-Identifier: MIT
#include "ui/screens/tools/ToolsScreenModel.h"

#include "state/AppModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

/// What a screen reader says of a row, which is one button.
QString spoken(const ToolsScreenModel::Tool& tool) {
    const QString said = lookOf(tool.screen).title + QStringLiteral(". ") + tool.detail;
    return tool.cleanup.isEmpty() ? said : said + u' ' + tool.cleanup;
}

}  // namespace

ToolsScreenModel::ToolsScreenModel(AppModel& app) : app_(app) {}

const std::vector<ToolsScreenModel::Tool>& ToolsScreenModel::tools() {
    static const std::vector<Tool> all{
        {Screen::survey,
         QStringLiteral("Scan your whole Mac and see space by type, the biggest files, and how it changes over time."),
         {}},
        {Screen::reclaim, QStringLiteral("Find caches, logs, and developer junk, grouped by safety."),
         QStringLiteral("clear it to the Trash")},
        {Screen::lens, QStringLiteral("Explore where space went as bubbles, a drill-down list, or a treemap."),
         QStringLiteral("delete folders you don't need")},
        {Screen::clutter, QStringLiteral("Surface your largest and oldest files, filterable by type."),
         QStringLiteral("move them to the Trash")},
        {Screen::duplicates, QStringLiteral("Find byte-identical files across your folders."),
         QStringLiteral("keep one copy, trash the rest")},
        {Screen::health, QStringLiteral("Live disk, memory, CPU, and battery gauges."), {}},
        {Screen::apps, QStringLiteral("See apps by true footprint and uninstall them with all their leftovers."), {}},
        {Screen::privacy,
         QStringLiteral("Clear browsing traces — caches, histories, cookies — across your browsers."),
         {}},
        {Screen::tune, QStringLiteral("Free up memory, flush the DNS cache, and manage startup items."), {}},
        {Screen::system, QStringLiteral("Local snapshots, purgeable space, and disk-image / VM bloat."), {}},
    };
    return all;
}

QString ToolsScreenModel::symbol() const {
    return lookOf(Screen::tools).symbol;
}
QColor ToolsScreenModel::tint() const {
    return lookOf(Screen::tools).color;
}
QString ToolsScreenModel::title() const {
    return lookOf(Screen::tools).title;
}
QString ToolsScreenModel::subtitle() const {
    return QStringLiteral("everything Zelk can do");
}

int ToolsScreenModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(tools().size());
}

QVariant ToolsScreenModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Tool& tool = tools()[static_cast<std::size_t>(index.row())];
    const ScreenLook& look = lookOf(tool.screen);
    switch (role) {
        case symbolRole:
            return look.symbol;
        case tintRole:
            return look.color;
        case Qt::DisplayRole:
        case titleRole:
            return look.title;
        case detailRole:
            return tool.detail;
        case cleanupRole:
            return tool.cleanup;
        case cleansRole:
            return !tool.cleanup.isEmpty();
        case spokenRole:
            return spoken(tool);
        default:
            return {};
    }
}

QHash<int, QByteArray> ToolsScreenModel::roleNames() const {
    return {{symbolRole, "symbol"},   {tintRole, "tint"},     {titleRole, "title"},  {detailRole, "detail"},
            {cleanupRole, "cleanup"}, {cleansRole, "cleans"}, {spokenRole, "spoken"}};
}

void ToolsScreenModel::press(int row) {
    if (row < 0 || row >= rowCount()) return;
    app_.setSelection(tools()[static_cast<std::size_t>(row)].screen);
}

}  // namespace zelk

#include "moc_ToolsScreenModel.cpp"
