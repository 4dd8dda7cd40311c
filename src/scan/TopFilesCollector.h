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

    /// A filter without locking. May accept a file that offer() then refuses, but never rejects one that belongs in the
    /// list: the threshold only rises, and a stale one is too low.
    bool mayTake(std::int64_t size) const {
        return !full_.load(std::memory_order_acquire) || threshold_.load(std::memory_order_relaxed) < size;
    }

    /// Offers a file. Calls `pathProvider()`, under the lock, only if the file is taken. A full list refuses a file
    /// equal to its smallest; the earliest of several smallest makes room.
    template <class PathProvider>
    void offer(const PathProvider& pathProvider, std::int64_t size, TimePoint modified, FileType type) {
        const std::lock_guard lock(mutex_);
        const bool wasFull = items_.size() >= capacity;
        if (wasFull && threshold_.load(std::memory_order_relaxed) >= size) return;
        items_.push_back({pathProvider(), size, modified, type});
        if (wasFull) {
            // Erase, so that equal files keep their order of arrival.
            items_.erase(smallest());
        }
        if (items_.size() >= capacity) {
            threshold_.store(smallest()->size, std::memory_order_relaxed);
            full_.store(true, std::memory_order_release);
        }
    }

    /// The smallest size in a full list; 0 until it is full.
    std::int64_t threshold() const { return threshold_.load(std::memory_order_relaxed); }

    /// In order of arrival, unsorted.
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
