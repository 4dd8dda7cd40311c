// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstddef>

#include "platform/SharedWork.h"
#include "scan/CancelFlag.h"

namespace zelk {

/// Work of one thread that others may join, until no part is left or the scan is cancelled.
class OfferedWork {
public:
    explicit OfferedWork(SharedWork& work) : work_(work), parts_(work.parts()) {}

    /// Runs parts that nobody has begun yet, until there are none. Any number of threads may do so at once.
    void join(const CancelFlag& cancel) {
        while (!cancel.isSet()) {
            const std::size_t part = next_.fetch_add(1, std::memory_order_relaxed);
            if (part >= parts_) return;
            work_.run(part);
        }
    }

    std::size_t parts() const { return parts_; }
    /// Whether every part was begun, which means done once nobody is at it any more.
    bool isBegun() const { return next_.load(std::memory_order_relaxed) >= parts_; }

    std::size_t helpers = 0;  ///< threads that joined besides its owner; guarded by the walker's lock

private:
    SharedWork& work_;
    const std::size_t parts_;
    std::atomic<std::size_t> next_ = 0;
};

}  // namespace zelk
