// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/ItemList.h"

#include <algorithm>
#include <utility>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SafetyLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

ItemList::ItemList(AppModel& app, DevCleanupModel& cleanup)
    : RowModel(
          rows_,
          {{"group", &Row::isGroup},
           {"name", nameOf},
           {"place", placeOf},
           {"line", [this](const Row& row) { return lineOf(row); }},
           {"figure", figureOf},
           {"age", [this](const Row& row) { return ageOf(row); }},
           {"tint", [](const Row& row) { return colorOf(row.isGroup() ? row.category().safety : row.item->safety); }},
           {"grade", [](const Row& row) { return row.isGroup() ? wordOf(row.category().safety) : QString(); }},
           {"chosen",
            [this](const Row& row) {
                return row.isGroup() ? row.group->counts.all() : cleanup_.selection().takes(*row.item);
            }},
           {"free",
            [this](const Row& row) {
                return row.isGroup() ? row.group->counts.selectable > 0
                                     : cleanup_.selection().conflictOf(*row.item).empty();
            }},
           {"open", [](const Row& row) { return row.isGroup() && row.group->open; }},
           {"spoken", [this](const Row& row) { return spokenOf(row); }}}),
      app_(app),
      cleanup_(cleanup) {
    connect(&app, &AppModel::reclaimablesChanged, this, &ItemList::refresh);
    connect(&cleanup, &DevCleanupModel::ageDaysChanged, this, [this] {
        emit ageChanged();
        refresh();
    });
    connect(&cleanup, &DevCleanupModel::selectionChanged, this, &ItemList::followSelection);
    refresh();
}

QString ItemList::footer() const {
    return tr("%1 items selected", "", forPlural(static_cast<std::int64_t>(tallies_.selected.items)))
        .arg(tallies_.selected.items);
}

QString ItemList::footerBytes() const {
    return byteFigure(tallies_.selected.bytes);
}

QString ItemList::ageText() const {
    return ageDays() > 0 ? tr("%1 days", "", forPlural(ageDays())).arg(ageDays()) : tr("all");
}

QString ItemList::shownText() const {
    return tr("%1 of %2 shown").arg(tallies_.shown.items).arg(app_.reclaimables().size());
}

QString ItemList::nameOf(const Row& row) {
    return row.isGroup() ? SystemTexts::worded(row.category().displayName) : nameText(row.item->path);
}

QString ItemList::placeOf(const Row& row) {
    return row.isGroup() ? SystemTexts::worded(row.category().note) : folderText(row.item->path);
}

QString ItemList::figureOf(const Row& row) {
    if (!row.isGroup()) return byteFigure(static_cast<std::int64_t>(row.item->size));
    const CleanupGroup& content = row.group->content;
    return inReadingOrder(QStringLiteral("%1 · ").arg(content.items.size()) + byteFigure(content.bytes()));
}

QString ItemList::lineOf(const Row& row) const {
    if (row.isGroup()) return {};
    const ReclaimMethod& method = row.item->method;
    if (method.kind == ReclaimMethod::Kind::command) {
        if (!app_.platform().locations.isSandboxed()) return displayText(methodSummary(method));
        return tr("needs %1, which Flatpak’s sandbox does not have").arg(displayText(toolOf(method)));
    }
    const std::string& application = cleanup_.selection().conflictOf(*row.item);
    if (application == Cleaner::unknownApplication) return tr("may be in use: what runs can’t be seen from here");
    return application.empty() ? QString() : tr("quit %1 to clear").arg(displayText(application));
}

QString ItemList::ageOf(const Row& row) const {
    if (row.isGroup()) return {};
    const double days = (app_.platform().clock.now() - row.item->lastModified) / secondsPerDay;
    return tr("%1d").arg(static_cast<qint64>(days));
}

QString ItemList::spokenOf(const Row& row) const {
    if (!row.isGroup())
        return AccessibleText::joined({nameOf(row), figureOf(row), ageOf(row), lineOf(row), placeOf(row)});
    return AccessibleText::joined({nameOf(row), figureOf(row), wordOf(row.category().safety),
                                   row.group->open ? tr("expanded") : tr("collapsed"), placeOf(row)});
}

void ItemList::toggle(int row) {
    if (!has(row)) return;
    const auto [group, item] = rows_[static_cast<std::size_t>(row)];
    ticking_ = true;
    if (item == nullptr)
        cleanup_.setAll(group->content, !group->counts.all());
    else
        cleanup_.toggle(*item);
    ticking_ = false;
    tickChanged(row);
}

bool ItemList::isTwin(const Group& group, const Reclaimable& item) {
    const std::vector<Reclaimable>& items = group.content.items;
    return std::count_if(items.begin(), items.end(), [&](const Reclaimable& one) { return one.id == item.id; }) > 1;
}

/// Updates the rows affected by ticking this one, and the sums.
void ItemList::tickChanged(int row) {
    const auto [group, item] = rows_[static_cast<std::size_t>(row)];
    const int header = headerOf(group);
    if (item == nullptr) {
        count();
        if (group->open) rowsChanged(header + 1, header + static_cast<int>(group->content.items.size()), {chosenRole});
    } else {
        if (!cleanup_.selection().conflictOf(*item).empty()) return;
        // With one scan root inside another, items of the inner one are listed twice but selected as one.
        if (isTwin(*group, *item)) return followSelection();
        DevCleanupModel::Tally& sum = tallies_.selected;
        const auto size = static_cast<std::int64_t>(item->size);
        if (cleanup_.selection().contains(*item)) {
            ++group->counts.selected;
            ++sum.items;
            sum.bytes += size;
        } else {
            --group->counts.selected;
            --sum.items;
            sum.bytes -= size;
        }
        rowChanged(row, {chosenRole});
    }
    rowChanged(header, {chosenRole});
    emit footerChanged();
}

void ItemList::press(int row) {
    if (!has(row)) return;
    const auto [group, item] = rows_[static_cast<std::size_t>(row)];
    if (item == nullptr)
        setOpen(row, !group->open);
    else
        toggle(row);
}

void ItemList::setOpen(int row, bool open) {
    if (!has(row)) return;
    const auto [group, item] = rows_[static_cast<std::size_t>(row)];
    if (item != nullptr || group->open == open) return;
    const std::vector<Reclaimable>& items = group->content.items;
    const int first = row + 1;
    const int last = row + static_cast<int>(items.size());
    group->open = open;
    if (open) {
        open_.emplace(group->content.category->id);
        std::vector<Row> unfolded;
        unfolded.reserve(items.size());
        for (const Reclaimable& one : items) unfolded.push_back({group, &one});
        beginInsertRows({}, first, last);
        rows_.insert(rows_.begin() + first, unfolded.begin(), unfolded.end());
        endInsertRows();
    } else {
        open_.erase(open_.find(group->content.category->id));
        beginRemoveRows({}, first, last);
        rows_.erase(rows_.begin() + first, rows_.begin() + last + 1);
        endRemoveRows();
    }
    rowChanged(row, {openRole, spokenRole});
}

int ItemList::groupRow(int row) const {
    return has(row) ? headerOf(rows_[static_cast<std::size_t>(row)].group) : -1;
}

void ItemList::clean() {
    if (cleanable()) cleanup_.setShowDryRun(true);
}

void ItemList::followSelection() {
    if (ticking_) return;
    count();
    allRowsChanged({chosenRole, freeRole, lineRole, spokenRole});
    emit footerChanged();
}

void ItemList::refresh() {
    // Kept until edit() returns: the old rows point into the old groups.
    const Groups former = std::exchange(groups_, readGroups());
    count();
    edit(rows_, rowsOf(groups_), keyOf);
    allRowsChanged();
    emit footerChanged();
}

ItemList::Groups ItemList::readGroups() const {
    Groups groups;
    for (CleanupGroup& group : cleanup_.groups(app_.reclaimables())) {
        const bool open = open_.contains(group.category->id);
        groups.push_back(std::make_unique<Group>(Group{std::move(group), {}, open}));
    }
    return groups;
}

std::vector<ItemList::Row> ItemList::rowsOf(const Groups& groups) {
    std::vector<Row> rows;
    for (const std::unique_ptr<Group>& group : groups) {
        rows.push_back({group.get(), nullptr});
        if (!group->open) continue;
        for (const Reclaimable& item : group->content.items) rows.push_back({group.get(), &item});
    }
    return rows;
}

/// Unambiguous: a path begins with a slash, the id of a category does not.
std::string_view ItemList::keyOf(const Row& row) {
    return row.item == nullptr ? row.group->content.category->id : std::string_view(row.item->id);
}

void ItemList::count() {
    for (const std::unique_ptr<Group>& group : groups_) group->counts = cleanup_.selectionCounts(group->content);
    tallies_ = cleanup_.tallies(app_.reclaimables());
}

int ItemList::headerOf(const Group* group) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [group](const Row& row) { return row.group == group; });
    return static_cast<int>(found - rows_.begin());
}

}  // namespace zelk

#include "moc_ItemList.cpp"
