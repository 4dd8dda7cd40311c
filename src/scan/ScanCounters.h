// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <mutex>

namespace zelk {

/// The running counts of a scan. Safe from any thread.
class ScanCounters {
public:
    /// Items (files and directories) between two progress updates.
    static constexpr std::int64_t emitEvery = 20'000;

    struct Counts {
        std::int64_t files = 0;
        std::int64_t dirs = 0;
        std::int64_t bytes = 0;
        std::int64_t blocked = 0;
    };

    /// True when a progress update is due: at most once per directory, however many files it has.
    bool recordDirectory(std::int64_t fileCount, std::int64_t bytes) {
        const std::lock_guard lock(mutex_);
        counts_.dirs += 1;
        counts_.files += fileCount;
        counts_.bytes += bytes;
        sinceEmit_ += fileCount + 1;
        if (sinceEmit_ < emitEvery) return false;
        sinceEmit_ = 0;
        return true;
    }

    void recordBlocked() {
        const std::lock_guard lock(mutex_);
        counts_.blocked += 1;
    }

    Counts counts() const {
        const std::lock_guard lock(mutex_);
        return counts_;
    }

private:
    mutable std::mutex mutex_;
    Counts counts_;
    std::int64_t sinceEmit_ = 0;
};

}  // namespace zelk
