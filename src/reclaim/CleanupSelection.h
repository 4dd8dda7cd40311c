// SPDX-License-Identifier: MIT
// The selection for a clean-up, as plain values. Nothing here touches the disk.
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

/// True if the item was last modified more than `days` before `now`, and for every item if `days` is below 1.
bool isOldEnough(const Reclaimable& item, std::int64_t days, TimePoint now);

/// The items that are old enough, in their order.
std::vector<Reclaimable> ageFiltered(const std::vector<Reclaimable>& items, std::int64_t days, TimePoint now);

/// The items of one category, largest first.
struct CleanupGroup {
    const ReclaimCategory* category;  ///< a row of the catalogue
    std::vector<Reclaimable> items;

    std::int64_t bytes() const { return totalSize(items); }
};

/// Groups items by category, the group with the most bytes first. Drops categories that are not in the catalogue.
std::vector<CleanupGroup> cleanupGroups(std::vector<Reclaimable> items);

/// The selected items, and those that a running application uses. An item in use is never cleaned, selected or not.
class CleanupSelection {
public:
    /// Gives the name of the application that uses an item; absent if none does.
    using Conflict = std::function<std::optional<std::string>(const Reclaimable&)>;

    struct Counts {
        std::size_t selected = 0;
        std::size_t selectable = 0;

        /// False for a group without selectable items.
        bool all() const { return selected > 0 && selected == selectable; }
        bool operator==(const Counts&) const = default;
    };

    /// Selects every item that needs no review and looks for conflicts. Does nothing for a list of the same length as
    /// the last one, so that the user's choice survives a new survey.
    void seed(const std::vector<Reclaimable>& items, const Conflict& conflict);
    /// Selects exactly these items.
    void selectOnly(const std::vector<Reclaimable>& items);

    void toggle(const Reclaimable& item);
    void setAll(const CleanupGroup& group, bool on);

    bool contains(const Reclaimable& item) const { return selected_.contains(item.id); }
    /// Whether it would be cleaned: it is selected and not in use.
    bool takes(const Reclaimable& item) const { return contains(item) && !inUse(item); }
    /// The application that uses it; empty if none does.
    const std::string& conflictOf(const Reclaimable& item) const;
    Counts counts(const CleanupGroup& group) const;
    /// The items to clean, of a list that was filtered by age.
    std::vector<Reclaimable> chosen(std::vector<Reclaimable> shown) const;

    const std::unordered_set<std::string>& selected() const { return selected_; }
    const std::unordered_map<std::string, std::string>& runningConflicts() const { return runningConflicts_; }
    std::size_t seededFor() const { return seededFor_; }

private:
    bool inUse(const Reclaimable& item) const { return runningConflicts_.contains(item.id); }

    // Hashed, because ids are long paths with common prefixes: a lookup among twenty thousand sorted ones would compare
    // fifteen of them.
    std::unordered_set<std::string> selected_;
    std::unordered_map<std::string, std::string> runningConflicts_;  // to an application's name
    std::size_t seededFor_ = 0;
};

}  // namespace zelk
