// SPDX-License-Identifier: MIT
#include "platform/posix/RemovalTurn.h"

#include <sys/resource.h>

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <mutex>

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

// Not the library's semaphore: g++'s wakes all that wait for each turn that comes free, and thousands of items then
// cost their number squared. Never destroyed, since a thread may outlive main().
struct Turns {
    std::mutex mutex;
    std::condition_variable free;
    std::ptrdiff_t taken = 0;
};

Turns& turns() {
    static auto* instance = new Turns;
    return *instance;
}

}  // namespace

RemovalTurn::RemovalTurn() {
    Turns& all = turns();
    std::unique_lock lock(all.mutex);
    // Asked each time: the limit may have been changed since the last one.
    all.free.wait(lock, [&] { return all.taken < turnCount(); });
    ++all.taken;
}

RemovalTurn::~RemovalTurn() {
    Turns& all = turns();
    {
        const std::lock_guard lock(all.mutex);
        --all.taken;
    }
    all.free.notify_one();
}

}  // namespace zelk
