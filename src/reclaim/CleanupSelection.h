// SPDX-License-Identifier: MIT
// What is chosen for a clean-up, as values: nothing here touches the disk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/Time.h"
#include "reclaim/ReclaimCatalogue.h"
#include "reclaim/ReclaimTotals.h"

namespace zelk {

/// Whether an item was last modified more than `days` before `now`; any is for `days` below 1.
bool isOldEnough(const Reclaimable& item, std::int64_t days, TimePoint now);

/// The items that were last modified more than `days` before `now`, in their order; all of them for `days` below 1.
std::vector<Reclaimable> ageFiltered(const std::vector<Reclaimable>& items, std::int64_t days, TimePoint now);

/// The items of one category, largest first.
struct CleanupGroup {
    const ReclaimCategory* category;  ///< a row of the catalogue
    std::vector<Reclaimable> items;

    std::int64_t bytes() const { return totalSize(items); }
};

/// By category, the group with the most bytes first; what has no row in the catalogue is dropped.
std::vector<CleanupGroup> cleanupGroups(std::vector<Reclaimable> items);

/// The ticks of a person, and the items that a running application still uses. An item that is in use is never part of
/// what is cleaned, ticked or not.
class CleanupSelection {
public:
    /// The name of the application that uses an item; absent if none does.
    using Conflict = std::function<std::optional<std::string>(const Reclaimable&)>;

    struct Counts {
        std::size_t selected = 0;
        std::size_t selectable = 0;

        /// A group of which nothing may be selected is not selected.
        bool all() const { return selected > 0 && selected == selectable; }
        bool operator==(const Counts&) const = default;
    };

    /// Ticks what may be cleaned without a second look and finds what is in use, for a list of another length than the
    /// last one. Of the same length a person's choice is kept.
    void seed(const std::vector<Reclaimable>& items, const Conflict& conflict);
    /// Ticks exactly these.
    void selectOnly(const std::vector<Reclaimable>& items);

    void toggle(const Reclaimable& item);
    void setAll(const CleanupGroup& group, bool on);

    bool contains(const Reclaimable& item) const { return selected_.contains(item.id); }
    /// Whether it would be cleaned: it is ticked and not in use.
    bool takes(const Reclaimable& item) const { return contains(item) && !inUse(item); }
    /// The application that uses it; empty if none does.
    const std::string& conflictOf(const Reclaimable& item) const;
    Counts counts(const CleanupGroup& group) const;
    /// What would be cleaned of a list that was filtered by age: what is ticked and not in use.
    std::vector<Reclaimable> chosen(std::vector<Reclaimable> shown) const;

    const std::unordered_set<std::string>& selected() const { return selected_; }
    const std::unordered_map<std::string, std::string>& runningConflicts() const { return runningConflicts_; }
    std::size_t seededFor() const { return seededFor_; }

private:
    bool inUse(const Reclaimable& item) const { return runningConflicts_.contains(item.id); }

    // Ids, long paths most of them that begin alike: to find one among twenty thousand by their order would compare it
    // with fifteen.
    std::unordered_set<std::string> selected_;
    std::unordered_map<std::string, std::string> runningConflicts_;  // to an application's name
    std::size_t seededFor_ = 0;
};

}  // namespace zelk
