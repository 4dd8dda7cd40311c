// SPDX-License-Identifier: MIT
#include "reclaim/CleanupSelection.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace zelk {

bool isOldEnough(const Reclaimable& item, std::int64_t days, TimePoint now) {
    return days < 1 || item.lastModified < now - static_cast<double>(days) * secondsPerDay;
}

std::vector<Reclaimable> ageFiltered(const std::vector<Reclaimable>& items, std::int64_t days, TimePoint now) {
    std::vector<Reclaimable> old;
    std::copy_if(items.begin(), items.end(), std::back_inserter(old),
                 [=](const Reclaimable& item) { return isOldEnough(item, days, now); });
    return old;
}

std::vector<CleanupGroup> cleanupGroups(std::vector<Reclaimable> items) {
    std::vector<CleanupGroup> groups;
    std::vector<std::vector<std::size_t>> members;  // indices of each group's items: an item is moved once
    std::unordered_map<std::string_view, std::size_t> places;
    for (std::size_t at = 0; at < items.size(); ++at) {
        const auto row = reclaimCategoryByID().find(items[at].categoryID);
        if (row == reclaimCategoryByID().end()) continue;
        const auto [place, isNew] = places.try_emplace(row->first, groups.size());
        if (isNew) {
            groups.push_back({row->second, {}});
            members.emplace_back();
        }
        members[place->second].push_back(at);
    }
    for (std::size_t group = 0; group < groups.size(); ++group) {
        std::vector<std::size_t>& sorted = members[group];
        std::stable_sort(sorted.begin(), sorted.end(),
                         [&](std::size_t a, std::size_t b) { return items[a].size > items[b].size; });
        groups[group].items.reserve(sorted.size());
        for (const std::size_t at : sorted) groups[group].items.push_back(std::move(items[at]));
    }
    std::vector<std::pair<std::int64_t, CleanupGroup>> weighed;
    weighed.reserve(groups.size());
    for (CleanupGroup& group : groups) weighed.emplace_back(group.bytes(), std::move(group));
    std::stable_sort(weighed.begin(), weighed.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    std::transform(weighed.begin(), weighed.end(), groups.begin(), [](auto& pair) { return std::move(pair.second); });
    return groups;
}

void CleanupSelection::seed(const std::vector<Reclaimable>& items, const Conflict& conflict) {
    if (items.size() == seededFor_) return;
    seededFor_ = items.size();
    selected_.clear();
    runningConflicts_.clear();
    for (const Reclaimable& item : items) {
        if (item.safety != ReclaimSafety::review) selected_.insert(item.id);
        if (std::optional<std::string> application = conflict(item))
            runningConflicts_.insert_or_assign(item.id, std::move(*application));
    }
}

void CleanupSelection::selectOnly(const std::vector<Reclaimable>& items) {
    selected_.clear();
    for (const Reclaimable& item : items) selected_.insert(item.id);
}

void CleanupSelection::toggle(const Reclaimable& item) {
    if (inUse(item)) return;
    if (!selected_.insert(item.id).second) selected_.erase(item.id);
}

void CleanupSelection::setAll(const CleanupGroup& group, bool on) {
    for (const Reclaimable& item : group.items) {
        if (inUse(item)) continue;
        if (on)
            selected_.insert(item.id);
        else
            selected_.erase(item.id);
    }
}

const std::string& CleanupSelection::conflictOf(const Reclaimable& item) const {
    static const std::string none;
    const auto found = runningConflicts_.find(item.id);
    return found == runningConflicts_.end() ? none : found->second;
}

CleanupSelection::Counts CleanupSelection::counts(const CleanupGroup& group) const {
    Counts counts;
    for (const Reclaimable& item : group.items) {
        if (inUse(item)) continue;
        ++counts.selectable;
        if (contains(item)) ++counts.selected;
    }
    return counts;
}

std::vector<Reclaimable> CleanupSelection::chosen(std::vector<Reclaimable> shown) const {
    std::erase_if(shown, [this](const Reclaimable& item) { return !takes(item); });
    return shown;
}

}  // namespace zelk
