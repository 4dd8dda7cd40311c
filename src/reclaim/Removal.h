// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

namespace zelk {

/// One removal under way, as those who carry it out see it: how many items it has, how many of them were tried, and
/// whether another may begin. Safe from any thread.
class Removal {
public:
    /// `ended` is called once, on the thread that noted the last item; never if there is none.
    Removal(std::size_t items, std::function<void(const Removal&)> ended);

    std::size_t items() const { return items_; }
    /// How many were tried, well or not.
    std::size_t done() const { return done_; }
    /// Asked before each item: false from the first stop() on. What has begun goes on to its end.
    bool mayBegin() const { return !stopped_; }
    void stop() { stopped_ = true; }

    // Once for each item, when nothing more is done to it.

    void noteDone();
    /// It was left alone.
    void noteSkipped();

private:
    const std::size_t items_;
    const std::function<void(const Removal&)> ended_;
    std::atomic<std::size_t> done_ = 0;
    std::atomic<std::size_t> left_;
    std::atomic<bool> stopped_ = false;
};

}  // namespace zelk
