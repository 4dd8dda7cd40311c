// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

namespace zelk {

/// Set once to cancel a scan. Safe from any thread; guards no other data, so it needs no lock.
class CancelFlag {
public:
    void set() { flag_.store(true, std::memory_order_relaxed); }
    bool isSet() const { return flag_.load(std::memory_order_relaxed); }

private:
    std::atomic<bool> flag_{false};
};

}  // namespace zelk
