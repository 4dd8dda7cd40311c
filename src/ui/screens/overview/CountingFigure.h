// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace zelk {

/// A number that runs to its next value instead of jumping there. Times in seconds on any steady clock.
class CountingFigure {
public:
    void jump(std::int64_t value);
    /// Stays at what it shows at `now`.
    void stop(double now) { jump(at(now)); }
    /// Runs from what it shows at `now`, fast at first, and is there after `duration`.
    void aim(std::int64_t target, double now, double duration);

    std::int64_t at(double now) const;
    bool settled(double now) const { return now >= end_; }
    std::int64_t target() const { return target_; }

private:
    std::int64_t origin_ = 0;
    std::int64_t target_ = 0;
    double start_ = 0;
    double end_ = 0;
};

}  // namespace zelk
