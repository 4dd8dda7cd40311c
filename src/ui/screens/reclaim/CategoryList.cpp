// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/CategoryList.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "state/AppModel.h"
#include "state/Figures.h"
#include "ui/controls/AccessibleText.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/SafetyLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

QString countText(std::int64_t items) {
    return CategoryList::tr("%1 items", "", forPlural(items)).arg(items);
}

}  // namespace

CategoryList::CategoryList(AppModel& app, std::function<void(std::vector<Reclaimable>)> review)
    : RowModel(rows_, {{"identity", [](const Row& row) { return displayText(row.category->id); }},
                       {"name", [](const Row& row) { return SystemTexts::worded(row.category->displayName); }},
                       {"note", [](const Row& row) { return SystemTexts::worded(row.category->note); }},
                       {"tint", [](const Row& row) { return colorOf(row.category->safety); }},
                       {"bytes", [](const Row& row) { return static_cast<qint64>(row.bytes); }},
                       {"itemCount", [](const Row& row) { return countText(row.items); }},
                       {"grade", [](const Row& row) { return wordOf(row.category->safety); }},
                       {"chosen", [this](const Row& row) { return isChosen(row); }},
                       {"spoken",
                        [](const Row& row) {
                            return AccessibleText::joined(
                                {SystemTexts::worded(row.category->displayName), wordOf(row.category->safety),
                                 byteFigure(row.bytes), countText(row.items), SystemTexts::worded(row.category->note)});
                        }}}),
      app_(app),
      review_(std::move(review)),
      bubbles_({[this](const BubbleSlice& slice) {
                    for (std::size_t row = 0; row < rows_.size(); ++row)
                        if (rows_[row].category->id == slice.id) return toggle(static_cast<int>(row));
                },
                {},
                {}}) {
    connect(&app, &AppModel::reclaimablesChanged, this, &CategoryList::refresh);
    refresh();
}

void CategoryList::appear() {
    if (std::exchange(seeded_, true)) return;
    chooseSafe();
}

QString CategoryList::menuLabel() const {
    return chosen_.empty() ? tr("None") : QString::number(chosen_.size());
}

void CategoryList::toggle(int row) {
    if (!has(row)) return;
    const std::string id(rows_[static_cast<std::size_t>(row)].category->id);
    if (!chosen_.insert(id).second) chosen_.erase(id);
    rowChanged(row, {chosenRole});
    announce();
}

void CategoryList::chooseAll() {
    choose([](const ReclaimCategory&) { return true; });
}

void CategoryList::chooseSafe() {
    choose([](const ReclaimCategory& category) { return category.safety == ReclaimSafety::safe; });
}

void CategoryList::chooseNone() {
    choose([](const ReclaimCategory&) { return false; });
}

void CategoryList::choose(const std::function<bool(const ReclaimCategory&)>& wanted) {
    chosen_.clear();
    for (const Row& row : rows_)
        if (wanted(*row.category)) chosen_.emplace(row.category->id);
    allRowsChanged({chosenRole});
    announce();
}

void CategoryList::review() {
    std::vector<Reclaimable> items;
    for (const Reclaimable& item : app_.reclaimables())
        if (chosen_.contains(item.categoryID)) items.push_back(item);
    if (!items.empty()) review_(std::move(items));
}

void CategoryList::refresh() {
    std::unordered_map<std::string_view, std::int64_t> counts;
    for (const Reclaimable& item : app_.reclaimables()) ++counts[item.categoryID];
    std::vector<Row> rows;
    for (const auto& [category, bytes] : app_.reclaimTotals()) rows.push_back({category, bytes, counts[category->id]});
    edit(rows_, std::move(rows), [](const Row& row) { return row.category->id; });
    allRowsChanged();
    announce();
}

void CategoryList::announce() {
    showFooter();
    showBubbles();
    emit selectionChanged();
}

void CategoryList::showFooter() {
    // Counts by item, since categories unknown to the catalogue have no row but may have been selected before.
    std::int64_t bytes = 0;
    chosenItems_ = 0;
    for (const Reclaimable& item : app_.reclaimables()) {
        if (!chosen_.contains(item.categoryID)) continue;
        ++chosenItems_;
        bytes += static_cast<std::int64_t>(item.size);
    }
    footer_ = chosen_.empty()
                  ? tr("No categories selected")
                  : countText(static_cast<std::int64_t>(chosenItems_)) + QStringLiteral(" · ") + byteFigure(bytes);
}

void CategoryList::showBubbles() {
    std::vector<BubbleSlice> slices;
    for (const Row& row : rows_) {
        BubbleSlice slice;
        slice.id = row.category->id;
        slice.label = SystemTexts::worded(row.category->displayName);
        slice.bytes = row.bytes;
        slice.color = colorOf(row.category->safety);
        slice.selected = isChosen(row);
        slices.push_back(std::move(slice));
    }
    bubbles_.setSlices(std::move(slices));
}

}  // namespace zelk

#include "moc_CategoryList.cpp"
