// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

namespace zelk {

/// Raised once to end a scan. Safe from any thread; it guards no other data, so it needs no lock.
class CancelFlag {
public:
    void set() { flag_.store(true, std::memory_order_relaxed); }
    bool isSet() const { return flag_.load(std::memory_order_relaxed); }

private:
    std::atomic<bool> flag_{false};
};

}  // namespace zelk
