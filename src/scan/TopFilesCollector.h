// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <utility>
#include <vector>

#include "scan/ScanInsights.h"

namespace zelk {

/// Keeps the 250 largest files of a scan. Safe from any thread.
class TopFilesCollector {
public:
    static constexpr std::size_t capacity = 250;

    TopFilesCollector() { items_.reserve(capacity + 1); }

    /// A first filter without the lock. It may let a file through that offer() then refuses, and never keeps one out
    /// that belongs in: the threshold only rises, and a stale one is too low.
    bool mayTake(std::int64_t size) const {
        return !full_.load(std::memory_order_acquire) || threshold_.load(std::memory_order_relaxed) < size;
    }

    /// Considers a file; `pathProvider()` is called, under the lock, only if it is taken. One that merely equals the
    /// smallest of a full list is refused; of several smallest the earliest makes room.
    template <class PathProvider>
    void offer(const PathProvider& pathProvider, std::int64_t size, TimePoint modified, FileType type) {
        const std::lock_guard lock(mutex_);
        const bool wasFull = items_.size() >= capacity;
        if (wasFull && threshold_.load(std::memory_order_relaxed) >= size) return;
        items_.push_back({pathProvider(), size, modified, type});
        if (wasFull) {
            // Overwritten by its followers one by one, so that the arrival order of equals is kept.
            items_.erase(smallest());
        }
        if (items_.size() >= capacity) {
            threshold_.store(smallest()->size, std::memory_order_relaxed);
            full_.store(true, std::memory_order_release);
        }
    }

    /// The smallest size of a full list; 0 before it is full.
    std::int64_t threshold() const { return threshold_.load(std::memory_order_relaxed); }

    /// In arrival order, unsorted.
    std::vector<LargeFile> items() const {
        const std::lock_guard lock(mutex_);
        return items_;
    }

private:
    std::vector<LargeFile>::iterator smallest() {
        return std::min_element(items_.begin(), items_.end(),
                                [](const LargeFile& a, const LargeFile& b) { return a.size < b.size; });
    }

    mutable std::mutex mutex_;
    std::vector<LargeFile> items_;
    std::atomic<std::int64_t> threshold_{0};
    std::atomic<bool> full_{false};
};

}  // namespace zelk
