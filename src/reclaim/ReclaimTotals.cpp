// SPDX-License-Identifier: MIT
#include "reclaim/ReclaimTotals.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace zelk {

std::int64_t totalSize(const std::vector<Reclaimable>& items) {
    std::uint64_t bytes = 0;
    for (const Reclaimable& item : items) bytes += item.size;
    return static_cast<std::int64_t>(bytes);
}

ReclaimTotals totalsByCategory(const std::vector<Reclaimable>& items) {
    std::map<std::string_view, std::int64_t> bytesByID;
    for (const Reclaimable& item : items) bytesByID[item.categoryID] += static_cast<std::int64_t>(item.size);
    ReclaimTotals totals;
    for (const ReclaimCategory& category : reclaimCatalogue())
        if (const auto found = bytesByID.find(category.id); found != bytesByID.end())
            totals.emplace_back(&category, found->second);
    std::stable_sort(totals.begin(), totals.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    return totals;
}

}  // namespace zelk
