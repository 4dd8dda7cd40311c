// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>

namespace zelk::bench {

/// The processor time that this process has used, user and system, of all threads.
inline double processorMilliseconds() {
    rusage used{};
    ::getrusage(RUSAGE_SELF, &used);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
}

}  // namespace zelk::bench
