// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "platform/Time.h"

namespace zelk {

/// The system clocks.
class PosixClock : public Clock {
public:
    TimePoint now() override { return seconds(std::chrono::system_clock::now().time_since_epoch()); }
    double monotonic() override { return seconds(std::chrono::steady_clock::now().time_since_epoch()); }

private:
    template <class Duration>
    static double seconds(Duration duration) {
        return std::chrono::duration<double>(duration).count();
    }
};

}  // namespace zelk
