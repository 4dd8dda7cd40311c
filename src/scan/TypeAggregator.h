// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>

#include "scan/FileType.h"

namespace zelk {

/// Sums the bytes and counts of files by type. Safe from any thread; each directory adds its sums at once.
class TypeAggregator {
public:
    void merge(const TypeTotals& directory) {
        if (directory.empty()) return;
        const std::lock_guard lock(mutex_);
        for (const FileType type : allFileTypes) {
            totals_[type].bytes += directory[type].bytes;
            totals_[type].count += directory[type].count;
        }
    }

    TypeTotals totals() const {
        const std::lock_guard lock(mutex_);
        return totals_;
    }

private:
    mutable std::mutex mutex_;
    TypeTotals totals_;
};

}  // namespace zelk
