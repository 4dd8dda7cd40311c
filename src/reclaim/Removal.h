// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

namespace zelk {

/// One running removal, as seen by the tasks that carry it out: the number of its items, how many of them were tried,
/// and whether another may begin. Safe from any thread.
class Removal {
public:
    /// Calls `ended` once, on the thread that counts the last item; never if there are no items.
    Removal(std::size_t items, std::function<void(const Removal&)> ended);

    std::size_t items() const { return items_; }
    /// How many items were tried, whether they succeeded or failed.
    std::size_t done() const { return done_; }
    /// To be checked before each item: false after stop(). An item that has begun is finished.
    bool mayBegin() const { return !stopped_; }
    void stop() { stopped_ = true; }

    // One of these is called once per item, when nothing more is done to it.

    void noteDone();
    /// The item was not tried.
    void noteSkipped();

private:
    const std::size_t items_;
    const std::function<void(const Removal&)> ended_;
    std::atomic<std::size_t> done_ = 0;
    std::atomic<std::size_t> left_;
    std::atomic<bool> stopped_ = false;
};

}  // namespace zelk
