// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <utility>
#include <vector>

#include "scan/ScanInsights.h"

namespace zelk {

/// Collects all large disk images of a scan. Safe from any thread.
class DiskImageCollector {
public:
    void append(LargeFile image) {
        const std::lock_guard lock(mutex_);
        items_.push_back(std::move(image));
    }

    /// In order of arrival, unsorted.
    std::vector<LargeFile> items() const {
        const std::lock_guard lock(mutex_);
        return items_;
    }

private:
    mutable std::mutex mutex_;
    std::vector<LargeFile> items_;
};

}  // namespace zelk
