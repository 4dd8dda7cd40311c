// SPDX-License-Identifier: MIT
#include "platform/posix/RemovalTurn.h"

#include <sys/resource.h>

#include <algorithm>
#include <semaphore>

namespace zelk {

namespace {

/// More than a disk has use for; fewer where descriptors are short: a removal deep in a tree holds some twenty, and
/// others want their share.
std::ptrdiff_t turnCount() {
    constexpr rlim_t descriptorsEach = 32;
    constexpr rlim_t most = 64;
    rlimit limit;
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return 2;
    return static_cast<std::ptrdiff_t>(std::clamp<rlim_t>(limit.rlim_cur / descriptorsEach, 2, most));
}

std::counting_semaphore<>& turns() {
    static std::counting_semaphore<> free(turnCount());
    return free;
}

}  // namespace

RemovalTurn::RemovalTurn() {
    turns().acquire();
}

RemovalTurn::~RemovalTurn() {
    turns().release();
}

}  // namespace zelk
