// SPDX-License-Identifier: MIT
#include "platform/posix/DescriptorLimit.h"

#include <sys/resource.h>

#include <algorithm>

namespace zelk {

void raiseDescriptorLimit() {
    constexpr rlim_t wanted = 8192;  // below OPEN_MAX (10240), the most that macOS accepts
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= wanted) return;
    limit.rlim_cur = std::min(wanted, limit.rlim_max);
    setrlimit(RLIMIT_NOFILE, &limit);
}

}  // namespace zelk
