// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <utility>
#include <vector>

#include "scan/ScanInsights.h"

namespace zelk {

/// The large disk images of a scan, all of them. Safe from any thread.
class DiskImageCollector {
public:
    void append(LargeFile image) {
        const std::lock_guard lock(mutex_);
        items_.push_back(std::move(image));
    }

    /// In arrival order, unsorted.
    std::vector<LargeFile> items() const {
        const std::lock_guard lock(mutex_);
        return items_;
    }

private:
    mutable std::mutex mutex_;
    std::vector<LargeFile> items_;
};

}  // namespace zelk
