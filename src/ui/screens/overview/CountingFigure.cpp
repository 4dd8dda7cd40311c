// SPDX-License-Identifier: MIT
#include "ui/screens/overview/CountingFigure.h"

#include <cmath>

namespace zelk {

void CountingFigure::jump(std::int64_t value) {
    origin_ = target_ = value;
    start_ = end_ = 0;
}

void CountingFigure::aim(std::int64_t target, double now, double duration) {
    if (target == target_) return;
    origin_ = at(now);
    target_ = target;
    start_ = now;
    end_ = now + duration;
}

std::int64_t CountingFigure::at(double now) const {
    if (settled(now)) return target_;
    if (now <= start_) return origin_;
    const double left = (end_ - now) / (end_ - start_);
    const double way = static_cast<double>(target_) - static_cast<double>(origin_);
    return target_ - std::llround(way * left * left * left);
}

}  // namespace zelk
