// SPDX-License-Identifier: MIT
#include "platform/posix/DescriptorLimit.h"

#include <sys/resource.h>

#include <algorithm>

#include "platform/posix/DirectoryLadder.h"

namespace zelk {

void raiseDescriptorLimit() {
    constexpr rlim_t wanted = 8192;  // below OPEN_MAX (10240), the most that macOS accepts
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= wanted) return;
    limit.rlim_cur = std::min(wanted, limit.rlim_max);
    setrlimit(RLIMIT_NOFILE, &limit);
}

std::int64_t readersWithinDescriptorLimit() {
    constexpr rlim_t each = DirectoryLadder::maximumOpen + 4;  // plus those open briefly while moving up or down
    constexpr rlim_t others = 128;
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return 1;
    const rlim_t left = limit.rlim_cur - std::min(limit.rlim_cur, others);
    return static_cast<std::int64_t>(std::clamp<rlim_t>(left / each, 1, 1'000'000));
}

}  // namespace zelk
